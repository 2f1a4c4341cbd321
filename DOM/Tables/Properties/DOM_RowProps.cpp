#include "DOM/Tables/Properties/DOM_RowProps.h"

#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

template <MemberTrait Trait>
bool RowPropsImpl<Trait>::operator==(const RowPropsImpl& other) const
{
    return areAllMembersEqual(*this, other);
}

template <MemberTrait Trait>
std::partial_ordering RowPropsImpl<Trait>::compare(const RowPropsImpl& other, NanOrder nanOrder) const
{
    return compareAllMembers(*this, other, nanOrder);
}

template <MemberTrait Trait>
void RowPropsImpl<Trait>::serialize(cereal::JSONOutputArchive& archive) const
    requires(Trait == MemberTrait::OptionalMembers)
{
    saveMembers(archive, *this);
}

template <MemberTrait Trait>
void RowPropsImpl<Trait>::serialize(cereal::JSONInputArchive& archive) requires(Trait ==
                                                                                MemberTrait::OptionalMembers)
{
    loadMembers(archive, *this);
}

template class RowPropsImpl<MemberTrait::OptionalMembers>;
template class RowPropsImpl<MemberTrait::RequiredMembers>;

QN_DEFINE_ALGEBRA(RowProps)

} // namespace QN::DOM
