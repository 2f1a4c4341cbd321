#include "DOM/Tables/Properties/DOM_RowHeight.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

template <MemberTrait Trait>
bool RowHeightImpl<Trait>::operator==(const RowHeightImpl& other) const
{
    return areAllMembersEqual(*this, other);
}

template <MemberTrait Trait>
std::partial_ordering RowHeightImpl<Trait>::compare(const RowHeightImpl& other, NanOrder nanOrder) const
{
    return compareAllMembers(*this, other, nanOrder);
}

template <MemberTrait Trait>
void RowHeightImpl<Trait>::serialize(cereal::JSONOutputArchive& archive) const
    requires(Trait == MemberTrait::OptionalMembers)
{
    saveMembers(archive, *this);
}

template <MemberTrait Trait>
void RowHeightImpl<Trait>::serialize(cereal::JSONInputArchive& archive) requires(Trait ==
                                                                                 MemberTrait::OptionalMembers)
{
    loadMembers(archive, *this);
}

template class RowHeightImpl<MemberTrait::OptionalMembers>;
template class RowHeightImpl<MemberTrait::RequiredMembers>;

} // namespace QN::DOM
