#pragma once

#include <cstdint>

#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "DOM/Tables/Properties/DOM_MemberTrait.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// What can be said of a column. In the partial form, which alone is persisted, each member may be absent.
template <MemberTrait Trait>
class ColumnPropsImpl {
public:
    using Flag = TraitedMember<bool, Trait>;
    using Width = TraitedMember<float, Trait>;
    using Level = TraitedMember<std::uint8_t, Trait>;

    const Flag& isHidden() const { return _isHidden; }
    void setHidden(const Flag& isHidden) { _isHidden = isHidden; }

    /// Whether the width follows the content.
    const Flag& isBestFit() const { return _isBestFit; }
    void setBestFit(const Flag& isBestFit) { _isBestFit = isBestFit; }

    const Width& getWidth() const { return _width; }
    void setWidth(const Width& width) { _width = width; }

    /// The outline level of the column's group.
    const Level& getGroupingLevel() const { return _groupingLevel; }
    void setGroupingLevel(const Level& level) { _groupingLevel = level; }

    const Flag& hasPageBreakBefore() const { return _hasPageBreakBefore; }
    void setPageBreakBefore(const Flag& hasPageBreakBefore) { _hasPageBreakBefore = hasPageBreakBefore; }

    QN_EQUALITY(ColumnPropsImpl)
    QN_ORDER(ColumnPropsImpl)

    void serialize(cereal::JSONOutputArchive& archive) const requires(Trait == MemberTrait::OptionalMembers);
    void serialize(cereal::JSONInputArchive& archive) requires(Trait == MemberTrait::OptionalMembers);

private:
    Flag _isHidden{};
    Flag _isBestFit{};
    Width _width{};
    Level _groupingLevel{};
    Flag _hasPageBreakBefore{};

    BOOST_DESCRIBE_CLASS(ColumnPropsImpl, (), (), (),
                         (_isHidden, _isBestFit, _width, _groupingLevel, _hasPageBreakBefore))
};

extern template class DOM_API ColumnPropsImpl<MemberTrait::OptionalMembers>;
extern template class DOM_API ColumnPropsImpl<MemberTrait::RequiredMembers>;

QN_DECLARE_ALGEBRA(ColumnProps)

} // namespace QN::DOM
