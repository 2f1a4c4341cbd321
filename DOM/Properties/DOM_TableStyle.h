#pragma once

#include <memory>
#include <utility>

#include "DOM/Properties/DOM_RowColumnStyle.h"
#include "DOM/Properties/DOM_SharedStyle.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/UUID.h"

namespace QN::DOM {

class CellProps;
class ParaProps;
class RunProps;
class TableProps;

/// The anonymous style of a table.
class DOM_API TableStyle {
public:
    const std::shared_ptr<const TableProps>& getTableProps() const { return _tableProps; }
    void setTableProps(std::shared_ptr<const TableProps> props) { _tableProps = std::move(props); }

    const std::shared_ptr<const CellProps>& getCellProps() const { return _cellProps; }
    void setCellProps(std::shared_ptr<const CellProps> props) { _cellProps = std::move(props); }

    const std::shared_ptr<const ParaProps>& getParaProps() const { return _paraProps; }
    void setParaProps(std::shared_ptr<const ParaProps> props) { _paraProps = std::move(props); }

    const std::shared_ptr<const RunProps>& getRunProps() const { return _runProps; }
    void setRunProps(std::shared_ptr<const RunProps> props) { _runProps = std::move(props); }

    /// The style of the rows that have none of their own; the empty style when there is none.
    const RowStyle& getDefaultRowStyle() const { return derefSharedStyle(_defaultRowStyle); }
    const SharedStylePtr<RowStyle>& getSharedDefaultRowStyle() const { return _defaultRowStyle; }
    SharedStylePtr<RowStyle>& getSharedDefaultRowStyle() { return _defaultRowStyle; }

    /// The style of the columns that have none of their own; the empty style when there is none.
    const ColumnStyle& getDefaultColumnStyle() const { return derefSharedStyle(_defaultColumnStyle); }
    const SharedStylePtr<ColumnStyle>& getSharedDefaultColumnStyle() const { return _defaultColumnStyle; }
    SharedStylePtr<ColumnStyle>& getSharedDefaultColumnStyle() { return _defaultColumnStyle; }

    /// The named table style that this one refines; nil for none.
    const UUID& getParentUUID() const { return _parentUUID; }
    void setParentUUID(const UUID& uuid) { _parentUUID = uuid; }

    /// Whether the style says nothing. It looks at pointers alone: a default style that is present and empty does say
    /// something.
    bool isEmpty() const
    {
        return !_tableProps && !_cellProps && !_paraProps && !_runProps && !_defaultRowStyle &&
               !_defaultColumnStyle && !_parentUUID;
    }

    QN_ORDERED_VALUE(TableStyle)

private:
    std::shared_ptr<const TableProps> _tableProps;
    std::shared_ptr<const CellProps> _cellProps;
    std::shared_ptr<const ParaProps> _paraProps;
    std::shared_ptr<const RunProps> _runProps;
    SharedStylePtr<RowStyle> _defaultRowStyle;
    SharedStylePtr<ColumnStyle> _defaultColumnStyle;
    UUID _parentUUID;

    BOOST_DESCRIBE_CLASS(TableStyle, (), (), (),
                         (_tableProps, _cellProps, _paraProps, _runProps, _defaultRowStyle,
                          _defaultColumnStyle, _parentUUID))
};

} // namespace QN::DOM
