#include "DOM/Shapes/DOM_AnchorPosition.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

template <class Alignment, class RelativeTo>
bool AnchorPosition<Alignment, RelativeTo>::operator==(const AnchorPosition& other) const
{
    return areAllMembersEqual(*this, other);
}

template <class Alignment, class RelativeTo>
std::partial_ordering AnchorPosition<Alignment, RelativeTo>::compare(const AnchorPosition& other,
                                                                     NanOrder nanOrder) const
{
    return compareAllMembers(*this, other, nanOrder);
}

template <class Alignment, class RelativeTo>
void AnchorPosition<Alignment, RelativeTo>::serialize(cereal::JSONOutputArchive& archive) const
{
    saveMembers(archive, *this);
}

template <class Alignment, class RelativeTo>
void AnchorPosition<Alignment, RelativeTo>::serialize(cereal::JSONInputArchive& archive)
{
    loadMembers(archive, *this);
}

template class AnchorPosition<AnchorHorizontalAlignment, AnchorHorizontalRelativeTo>;
template class AnchorPosition<AnchorVerticalAlignment, AnchorVerticalRelativeTo>;

} // namespace QN::DOM
