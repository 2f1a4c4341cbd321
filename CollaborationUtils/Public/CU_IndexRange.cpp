#include "CollaborationUtils/Public/CU_IndexRange.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::CollaborationUtils {

template <class Index>
void IndexRange<Index>::serialize(cereal::JSONOutputArchive& archive) const
{
    checkInvariant();
    saveMembers(archive, *this);
}

template <class Index>
void IndexRange<Index>::serialize(cereal::JSONInputArchive& archive)
{
    loadMembers(archive, *this);
    checkInvariant();
}

template class IndexRange<IndexIncludingTombstones>;

} // namespace QN::CollaborationUtils
