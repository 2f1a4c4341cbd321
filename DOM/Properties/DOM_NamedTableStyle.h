#pragma once

#include <memory>
#include <utility>

#include "DOM/Properties/DOM_NamedStyleName.h"
#include "DOM/Tables/Properties/DOM_MemberTrait.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/UUIDable.h"

namespace QN::DOM {

class CellFormat;
class CellProps;
class ParaProps;
class RunProps;
class TableProps;

/// A style of tables and their parts that a document knows by name and `UUID`. Nothing checks that its parent exists, nor
/// that the parents make no circle.
class DOM_API NamedTableStyle final : public Reflectable<UUIDable> {
public:
    NamedTableStyle() = default;
    explicit NamedTableStyle(const UUID& uuid) : Reflectable<UUIDable>(uuid) {}

    const NamedStyleName& getName() const { return _name; }
    void setName(NamedStyleName name) { _name = std::move(name); }

    const std::shared_ptr<const ParaProps>& getParaProps() const { return _paraProps; }
    void setParaProps(std::shared_ptr<const ParaProps> props) { _paraProps = std::move(props); }

    const std::shared_ptr<const RunProps>& getRunProps() const { return _runProps; }
    void setRunProps(std::shared_ptr<const RunProps> props) { _runProps = std::move(props); }

    const std::shared_ptr<const RowProps>& getRowProps() const { return _rowProps; }
    void setRowProps(std::shared_ptr<const RowProps> props) { _rowProps = std::move(props); }

    const std::shared_ptr<const ColumnProps>& getColumnProps() const { return _colProps; }
    void setColumnProps(std::shared_ptr<const ColumnProps> props) { _colProps = std::move(props); }

    const std::shared_ptr<const CellProps>& getCellProps() const { return _cellProps; }
    void setCellProps(std::shared_ptr<const CellProps> props) { _cellProps = std::move(props); }

    const std::shared_ptr<const TableProps>& getTableProps() const { return _tableProps; }
    void setTableProps(std::shared_ptr<const TableProps> props) { _tableProps = std::move(props); }

    const std::shared_ptr<const CellFormat>& getCellFormat() const { return _cellFormat; }
    void setCellFormat(std::shared_ptr<const CellFormat> format) { _cellFormat = std::move(format); }

    /// The named table style that this one refines; nil for none.
    const UUID& getParentUUID() const { return _parentUUID; }
    void setParentUUID(const UUID& uuid) { _parentUUID = uuid; }

    QN_VALUE(NamedTableStyle)

private:
    NamedStyleName _name;
    std::shared_ptr<const ParaProps> _paraProps;
    std::shared_ptr<const RunProps> _runProps;
    std::shared_ptr<const RowProps> _rowProps;
    std::shared_ptr<const ColumnProps> _colProps;
    std::shared_ptr<const CellProps> _cellProps;
    std::shared_ptr<const TableProps> _tableProps;
    std::shared_ptr<const CellFormat> _cellFormat;
    UUID _parentUUID;

    BOOST_DESCRIBE_CLASS(NamedTableStyle, (UUIDable), (), (),
                         (_name, _paraProps, _runProps, _rowProps, _colProps, _cellProps, _tableProps,
                          _cellFormat, _parentUUID))
};

} // namespace QN::DOM
