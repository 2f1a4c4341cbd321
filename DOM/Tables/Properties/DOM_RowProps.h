#pragma once

#include <cstdint>

#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "DOM/Tables/Properties/DOM_MemberTrait.h"
#include "DOM/Tables/Properties/DOM_RowHeight.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// What can be said of a row. In the partial form, which alone is persisted, each member may be absent.
template <MemberTrait Trait>
class RowPropsImpl {
public:
    using Flag = TraitedMember<bool, Trait>;
    using Height = TraitedMember<RowHeightImpl<Trait>, Trait>;
    using Level = TraitedMember<std::uint8_t, Trait>;

    const Flag& isHidden() const { return _isHidden; }
    void setHidden(const Flag& isHidden) { _isHidden = isHidden; }

    /// One member, replaced whole: the value and the rule of the height are never combined from two levels.
    const Height& getHeight() const { return _height; }
    void setHeight(const Height& height) { _height = height; }

    /// The outline level of the row's group.
    const Level& getGroupingLevel() const { return _groupingLevel; }
    void setGroupingLevel(const Level& level) { _groupingLevel = level; }

    const Flag& hasPageBreakBefore() const { return _hasPageBreakBefore; }
    void setPageBreakBefore(const Flag& hasPageBreakBefore) { _hasPageBreakBefore = hasPageBreakBefore; }

    QN_EQUALITY(RowPropsImpl)
    QN_ORDER(RowPropsImpl)

    void serialize(cereal::JSONOutputArchive& archive) const requires(Trait == MemberTrait::OptionalMembers);
    void serialize(cereal::JSONInputArchive& archive) requires(Trait == MemberTrait::OptionalMembers);

private:
    Flag _isHidden{};
    Height _height{};
    Level _groupingLevel{};
    Flag _hasPageBreakBefore{};

    BOOST_DESCRIBE_CLASS(RowPropsImpl, (), (), (), (_isHidden, _height, _groupingLevel, _hasPageBreakBefore))
};

extern template class DOM_API RowPropsImpl<MemberTrait::OptionalMembers>;
extern template class DOM_API RowPropsImpl<MemberTrait::RequiredMembers>;

QN_DECLARE_ALGEBRA(RowProps)

} // namespace QN::DOM
