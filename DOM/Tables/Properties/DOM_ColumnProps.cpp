#include "DOM/Tables/Properties/DOM_ColumnProps.h"

#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

template <MemberTrait Trait>
bool ColumnPropsImpl<Trait>::operator==(const ColumnPropsImpl& other) const
{
    return areAllMembersEqual(*this, other);
}

template <MemberTrait Trait>
std::partial_ordering ColumnPropsImpl<Trait>::compare(const ColumnPropsImpl& other, NanOrder nanOrder) const
{
    return compareAllMembers(*this, other, nanOrder);
}

template <MemberTrait Trait>
void ColumnPropsImpl<Trait>::serialize(cereal::JSONOutputArchive& archive) const
    requires(Trait == MemberTrait::OptionalMembers)
{
    saveMembers(archive, *this);
}

template <MemberTrait Trait>
void ColumnPropsImpl<Trait>::serialize(cereal::JSONInputArchive& archive) requires(
    Trait == MemberTrait::OptionalMembers)
{
    loadMembers(archive, *this);
}

template class ColumnPropsImpl<MemberTrait::OptionalMembers>;
template class ColumnPropsImpl<MemberTrait::RequiredMembers>;

QN_DEFINE_ALGEBRA(ColumnProps)

} // namespace QN::DOM
