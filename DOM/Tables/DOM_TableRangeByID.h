#pragma once

#include "DOM/Tables/DOM_IDRange.h"
#include "DOM/Tables/DOM_RowColumnID.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// A rectangle of cells named by the identifiers of its corner rows and columns, all inclusive, so that it survives
/// structural change. Ordered by begin row, last row, begin column, last column; the order of its keys in a file is
/// another one.
class DOM_API TableRangeByID {
public:
    TableRangeByID() = default;
    TableRangeByID(const IDRange<RowID>& rows, const IDRange<ColumnID>& columns)
        : _beginRowID(rows.begin), _lastRowID(rows.last), _beginColID(columns.begin), _lastColID(columns.last)
    {
    }

    RowID getBeginRowID() const { return _beginRowID; }
    void setBeginRowID(RowID id) { _beginRowID = id; }

    RowID getLastRowID() const { return _lastRowID; }
    void setLastRowID(RowID id) { _lastRowID = id; }

    ColumnID getBeginColID() const { return _beginColID; }
    void setBeginColID(ColumnID id) { _beginColID = id; }

    ColumnID getLastColID() const { return _lastColID; }
    void setLastColID(ColumnID id) { _lastColID = id; }

    IDRange<RowID> getRowIDRange() const { return {_beginRowID, _lastRowID}; }
    void setRowIDRange(const IDRange<RowID>& rows)
    {
        _beginRowID = rows.begin;
        _lastRowID = rows.last;
    }

    IDRange<ColumnID> getColIDRange() const { return {_beginColID, _lastColID}; }
    void setColIDRange(const IDRange<ColumnID>& columns)
    {
        _beginColID = columns.begin;
        _lastColID = columns.last;
    }

    QN_ORDERED_VALUE(TableRangeByID)
    QN_JSON_ORDER(TableRangeByID, 0, 2, 1, 3)

private:
    RowID _beginRowID{0};
    RowID _lastRowID{0};
    ColumnID _beginColID{0};
    ColumnID _lastColID{0};

    BOOST_DESCRIBE_CLASS(TableRangeByID, (), (), (), (_beginRowID, _lastRowID, _beginColID, _lastColID))
};

} // namespace QN::DOM
