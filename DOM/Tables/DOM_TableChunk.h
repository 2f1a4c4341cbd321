#pragma once

#include <boost/describe/class.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "DOM/Tables/DOM_Cell.h"
#include "DOM/Tables/DOM_RowColumnID.h"
#include "Utils/Public/Export.h"
#include "Utils/Public/TableIndices/RowColumnIndex.h"

namespace QN::DOM {

/// A stored cell and the identifier of its column. Copies are deep. A loaded cell may be null.
struct DOM_API CellDataByCol {
    CellDataByCol() = default;
    CellDataByCol(std::unique_ptr<Cell> storedCell, ColumnID id) : cell(std::move(storedCell)), colID(id) {}
    CellDataByCol(const CellDataByCol& other);
    CellDataByCol(CellDataByCol&&) noexcept = default;
    CellDataByCol& operator=(const CellDataByCol& other) { return *this = CellDataByCol(other); }
    CellDataByCol& operator=(CellDataByCol&&) noexcept = default;
    ~CellDataByCol() = default;

    std::unique_ptr<Cell> cell;
    ColumnID colID;

    BOOST_DESCRIBE_CLASS(CellDataByCol, (), (cell, colID), (), ())
};

/// The stored cells of consecutive rows of a table, one row after the other, each row sorted by the index of its columns.
///
/// `rowDataOffsets[i]` is where the row `startRowIndex + i` begins in `data`; it ends where the next one begins. A row
/// without offset is empty. Offsets come from files unjudged, and replacing cells can raise them past the size of `data`:
/// no place in `data` is taken from them but through `getRelativeRowBoundaries`, or with a bound of its own.
struct DOM_API TableChunk {
    /// Places in `data`, with begin <= end <= size.
    struct Boundaries {
        std::size_t begin;
        std::size_t end;
    };

    /// The number of a row within the chunk. A row before the first one fails the contract "end >= begin".
    std::size_t getRelativeRow(RowIndex row) const;

    /// Past the last offset both ends are the end of `data`.
    Boundaries getRelativeRowBoundaries(std::size_t relativeRow) const;

    using CellIterator = std::vector<CellDataByCol>::const_iterator;
    std::size_t getPlace(CellIterator cell) const { return static_cast<std::size_t>(cell - data.begin()); }

    /// One past the last row with an offset.
    RowIndex getEndRow() const { return startRowIndex + rowDataOffsets.size(); }

    /// Gives offsets to all rows up to this one.
    void extendTo(std::size_t relativeRow);

    /// Moves the beginnings of all rows behind this one, downwards not below 0.
    void shiftRows(std::size_t relativeRow, std::int64_t delta);

    /// The first row of the second half, so that each half has about half of the cells; 0 for a chunk of one row, which
    /// cannot be split. Found by bisection.
    std::size_t getChunkMedian() const;

    /// Cuts off the rows from `median`, which is above 0, and answers them.
    TableChunk split(std::size_t median);

    std::vector<CellDataByCol> data;
    std::vector<std::uint64_t> rowDataOffsets;
    RowIndex startRowIndex;

    BOOST_DESCRIBE_CLASS(TableChunk, (), (data, rowDataOffsets, startRowIndex), (), ())
};

} // namespace QN::DOM
