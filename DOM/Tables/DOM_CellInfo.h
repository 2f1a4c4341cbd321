#pragma once

#include <boost/optional/optional.hpp>

#include <utility>

#include "DOM/Tables/DOM_RowColumnID.h"
#include "Utils/Public/Export.h"
#include "Utils/Public/TableIndices/CellIndex.h"
#include "Utils/Public/UUID.h"

namespace QN::DOM {

class Cell;
class Table;

/// The identity of a position: the table and the identifiers of the row and the column.
struct CellID {
    UUID tableUUID;
    RowID rowID;
    ColumnID columnID;

    friend bool operator==(const CellID&, const CellID&) = default;
};

/// All that a visitor of a table may need to know of one position. It refers to the table and to the cell, and a
/// structural change of the table invalidates it.
class DOM_API CellInfo {
public:
    CellInfo() = default;
    CellInfo(const Table* table, const Cell* cell, RowIndex row, ColumnIndex column, RowID rowID,
             ColumnID columnID)
        : _table(table), _cell(cell), _row(row), _column(column), _rowID(rowID), _columnID(columnID)
    {
    }

    /// Whether it tells of a position: identifiers are never 0.
    bool isInitialized() const { return _rowID.get() != 0 && _columnID.get() != 0; }

    /// Null only if none was given.
    const Table* getTable() const { return _table; }
    /// Null where no cell is stored.
    const Cell* getCell() const { return _cell; }

    RowIndex getRowIndex() const { return _row; }
    ColumnIndex getColIndex() const { return _column; }
    CellIndex getCellIndex() const { return {_row, _column}; }

    RowID getRowID() const { return _rowID; }
    ColumnID getColID() const { return _columnID; }
    std::pair<RowID, ColumnID> getCellIDPair() const { return {_rowID, _columnID}; }
    /// With a nil UUID when there is no table.
    CellID getCellID() const;

    /// The root of the pivot table whose area holds the position.
    boost::optional<CellIndex> getPivotRoot() const;

private:
    const Table* _table = nullptr;
    const Cell* _cell = nullptr;
    RowIndex _row;
    ColumnIndex _column;
    RowID _rowID;
    ColumnID _columnID;
};

} // namespace QN::DOM
