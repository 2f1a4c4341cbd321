#include "DOM/DOM_TrackChangesInfo.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(TrackChangesInfo)

bool areSameWithoutDate(const TrackChangesInfo& left, const TrackChangesInfo& right)
{
    return areMembersDeeplyEqual(left.getAuthorInfo(), right.getAuthorInfo());
}

} // namespace QN::DOM
