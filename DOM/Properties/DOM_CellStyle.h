#pragma once

#include <memory>
#include <utility>

#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "DOM/Properties/DOM_SharedStyle.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/UUID.h"

namespace QN::DOM {

class CellFormat;
class CellProps;
class ParaProps;
class RunProps;

/// The anonymous style of a table cell. Of the anonymous styles it alone is shared as an object also when it is empty.
class DOM_API CellStyle {
public:
    const std::shared_ptr<const CellProps>& getCellProps() const { return _cellProps; }
    void setCellProps(std::shared_ptr<const CellProps> props) { _cellProps = std::move(props); }

    const std::shared_ptr<const CellFormat>& getCellFormat() const { return _cellFormat; }
    void setCellFormat(std::shared_ptr<const CellFormat> format) { _cellFormat = std::move(format); }

    const std::shared_ptr<const ParaProps>& getParaProps() const { return _paraProps; }
    void setParaProps(std::shared_ptr<const ParaProps> props) { _paraProps = std::move(props); }

    const std::shared_ptr<const RunProps>& getRunProps() const { return _runProps; }
    void setRunProps(std::shared_ptr<const RunProps> props) { _runProps = std::move(props); }

    /// The named table style that this one refines; nil for none.
    const UUID& getParentUUID() const { return _parentUUID; }
    void setParentUUID(const UUID& uuid) { _parentUUID = uuid; }

    /// The note on the cell; nil for none.
    const UUID& getNoteUUID() const { return _noteUUID; }
    void setNoteUUID(const UUID& uuid) { _noteUUID = uuid; }

    /// Whether the style says nothing. It looks at pointers alone: properties that are present and empty do say
    /// something.
    bool isEmpty() const
    {
        return !_cellProps && !_cellFormat && !_paraProps && !_runProps && !_parentUUID && !_noteUUID;
    }

    QN_ORDERED_VALUE(CellStyle)

private:
    std::shared_ptr<const CellProps> _cellProps;
    std::shared_ptr<const CellFormat> _cellFormat;
    std::shared_ptr<const ParaProps> _paraProps;
    std::shared_ptr<const RunProps> _runProps;
    UUID _parentUUID;
    UUID _noteUUID;

    BOOST_DESCRIBE_CLASS(CellStyle, (), (), (),
                         (_cellProps, _cellFormat, _paraProps, _runProps, _parentUUID, _noteUUID))
};

/// The format is replaced and compared whole; the two UUIDs always have a value, so that a nil one overrides, too.
QN_DECLARE_OVERRIDE(CellStyle)
QN_DECLARE_EXCLUDE(CellStyle)
QN_DECLARE_REBASE(CellStyle)

} // namespace QN::DOM
