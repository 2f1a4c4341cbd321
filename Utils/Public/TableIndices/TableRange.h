#pragma once

#include <boost/describe/class.hpp>

#include <compare>
#include <cstdint>
#include <limits>

#include "Utils/Public/Export.h"
#include "Utils/Public/TableIndices/CellIndex.h"
#include "Utils/Public/TableIndices/RowColumnIndex.h"

namespace cereal {
class JSONInputArchive;
class JSONOutputArchive;
} // namespace cereal

namespace QN {

/// A rectangle of cells. The ends are one past the last row and column.
/// Invariant: it has at least one cell.
class DOM_API TableRange {
public:
    /// The whole of any table, up to the largest index.
    TableRange() = default;

    /// An empty or reversed range fails the contract "_beginRow < _endRow" or "_beginColumn < _endColumn".
    TableRange(RowIndex beginRow, RowIndex endRow, ColumnIndex beginColumn, ColumnIndex endColumn);

    /// From the first cell to `end`, which lies one past the last row and one past the last column.
    TableRange(const CellIndex& begin, const CellIndex& end);

    RowIndex getBeginRow() const { return _beginRow; }
    RowIndex getEndRow() const { return _endRow; }
    RowIndex getLastRow() const { return _endRow - 1; }
    std::uint64_t getRowCount() const { return (_endRow - _beginRow).get(); }

    ColumnIndex getBeginColumn() const { return _beginColumn; }
    ColumnIndex getEndColumn() const { return _endColumn; }
    ColumnIndex getLastColumn() const { return _endColumn - 1; }
    std::uint64_t getColumnCount() const { return (_endColumn - _beginColumn).get(); }

    bool contains(const TableRange& other) const;
    bool contains(const CellIndex& cell) const;

    /// Whether the two share a cell.
    bool intersects(const TableRange& other) const;

    /// Moves the range. Throws `BadNumCastError` and changes nothing when an index would fall below 0 or is, or would
    /// come to, 2^63 or more.
    void addOffset(int rows, int columns);

    friend bool operator==(const TableRange&, const TableRange&) = default;

    /// By begin and end of the rows, then by begin and end of the columns.
    friend std::strong_ordering operator<=>(const TableRange&, const TableRange&) = default;

    void serialize(cereal::JSONOutputArchive& archive) const;
    void serialize(cereal::JSONInputArchive& archive);

private:
    RowIndex _beginRow{0};
    RowIndex _endRow{std::numeric_limits<std::uint64_t>::max()};
    ColumnIndex _beginColumn{0};
    ColumnIndex _endColumn{std::numeric_limits<std::uint64_t>::max()};

    BOOST_DESCRIBE_CLASS(TableRange, (), (), (), (_beginRow, _endRow, _beginColumn, _endColumn))
};

} // namespace QN
