#pragma once

#include <boost/describe/class.hpp>

#include <compare>

#include "Utils/Public/TableIndices/RowColumnIndex.h"

namespace QN {

/// The position of a cell, ordered by row and then by column.
class CellIndex {
public:
    constexpr CellIndex() = default;
    constexpr CellIndex(RowIndex row, ColumnIndex column) : _row(row), _column(column) {}

    constexpr RowIndex getRow() const { return _row; }
    constexpr void setRow(RowIndex row) { _row = row; }

    constexpr ColumnIndex getColumn() const { return _column; }
    constexpr void setColumn(ColumnIndex column) { _column = column; }

    friend constexpr bool operator==(const CellIndex&, const CellIndex&) = default;
    friend constexpr std::strong_ordering operator<=>(const CellIndex&, const CellIndex&) = default;

private:
    RowIndex _row;
    ColumnIndex _column;

    BOOST_DESCRIBE_CLASS(CellIndex, (), (), (), (_row, _column))
};

} // namespace QN
