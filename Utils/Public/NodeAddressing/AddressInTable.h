#pragma once

#include <cstddef>
#include <string>

#include "Utils/Public/Export.h"
#include "Utils/Public/TableIndices/CellIndex.h"

namespace QN::NodeAddressing {

/// A step of a node address: a cell of a table.
class DOM_API AddressInTable {
public:
    AddressInTable() = default;
    AddressInTable(RowIndex row, ColumnIndex column) : _cell(row, column) {}
    explicit AddressInTable(const CellIndex& cell) : _cell(cell) {}

    RowIndex getRow() const { return _cell.getRow(); }
    void setRow(RowIndex row) { _cell.setRow(row); }

    ColumnIndex getColumn() const { return _cell.getColumn(); }
    void setColumn(ColumnIndex column) { _cell.setColumn(column); }

    const CellIndex& getCellIndex() const { return _cell; }

    friend bool operator==(const AddressInTable&, const AddressInTable&) = default;
    friend DOM_API std::size_t hash_value(const AddressInTable& address);

    /// Row and column counted from 0, as in "cell(2, 5)".
    std::string toString() const;

private:
    CellIndex _cell;
};

} // namespace QN::NodeAddressing
