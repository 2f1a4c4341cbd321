#include "DOM/Properties/DOM_RowColumnStyle.h"

#include "DOM/Tables/Properties/DOM_ColumnProps.h"
#include "DOM/Tables/Properties/DOM_RowProps.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

template <class P>
bool RowColumnStyle<P>::operator==(const RowColumnStyle& other) const
{
    return areAllMembersEqual(*this, other);
}

template <class P>
std::partial_ordering RowColumnStyle<P>::compare(const RowColumnStyle& other, NanOrder nanOrder) const
{
    return compareAllMembers(*this, other, nanOrder);
}

template <class P>
void RowColumnStyle<P>::serialize(cereal::JSONOutputArchive& archive) const
{
    saveMembers(archive, *this);
}

template <class P>
void RowColumnStyle<P>::serialize(cereal::JSONInputArchive& archive)
{
    loadMembers(archive, *this);
}

template class RowColumnStyle<RowProps>;
template class RowColumnStyle<ColumnProps>;

} // namespace QN::DOM
