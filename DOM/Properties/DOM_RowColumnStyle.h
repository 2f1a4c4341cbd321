#pragma once

#include <memory>
#include <utility>

#include "DOM/Properties/DOM_CellStyle.h"
#include "DOM/Properties/DOM_SharedStyle.h"
#include "DOM/Tables/Properties/DOM_MemberTrait.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Export.h"
#include "Utils/Public/UUID.h"

namespace QN::DOM {

/// The anonymous style of a row or of a column of a table, `P` being the partial set of its properties.
template <class P>
class RowColumnStyle {
public:
    /// The style of the cells that have none of their own; the empty style when there is none.
    const CellStyle& getDefaultCellStyle() const { return derefSharedStyle(_defaultCellStyle); }
    const SharedStylePtr<CellStyle>& getSharedDefaultCellStyle() const { return _defaultCellStyle; }
    SharedStylePtr<CellStyle>& getSharedDefaultCellStyle() { return _defaultCellStyle; }

    const std::shared_ptr<const P>& getProps() const { return _props; }
    void setProps(std::shared_ptr<const P> props) { _props = std::move(props); }

    /// The named table style that this one refines; nil for none.
    const UUID& getParentUUID() const { return _parentUUID; }
    void setParentUUID(const UUID& uuid) { _parentUUID = uuid; }

    /// Whether the style says nothing. It looks at pointers alone: a default cell style that is present and empty does
    /// say something.
    bool isEmpty() const { return !_defaultCellStyle && !_props && !_parentUUID; }

    QN_ORDERED_VALUE(RowColumnStyle)

private:
    SharedStylePtr<CellStyle> _defaultCellStyle;
    std::shared_ptr<const P> _props;
    UUID _parentUUID;

    BOOST_DESCRIBE_CLASS(RowColumnStyle, (), (), (), (_defaultCellStyle, _props, _parentUUID))
};

using RowStyle = RowColumnStyle<RowPropsImpl<MemberTrait::OptionalMembers>>;
using ColumnStyle = RowColumnStyle<ColumnPropsImpl<MemberTrait::OptionalMembers>>;

extern template class DOM_API RowColumnStyle<RowPropsImpl<MemberTrait::OptionalMembers>>;
extern template class DOM_API RowColumnStyle<ColumnPropsImpl<MemberTrait::OptionalMembers>>;

} // namespace QN::DOM
