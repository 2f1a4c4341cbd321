#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "DOM/Tables/TableInspection.h"

/// Tables as only a file can make them.

namespace QN::Test {

inline DOM::TableChunk& getFirstChunk(DOM::Table& table)
{
    return const_cast<DOM::TableChunk&>(getChunks(table).front());
}

inline std::vector<DOM::TableChunk>& getDamagedChunks(DOM::Table& table)
{
    return const_cast<std::vector<DOM::TableChunk>&>(getChunks(table));
}

/// Leaves the rows behind them stored.
inline void setLiveRowsCount(DOM::Table& table, std::uint64_t count)
{
    const_cast<std::uint64_t&>(getTableMember<std::uint64_t>(table, "_rowsCount")) = count;
}

/// So many cells in one chunk, each in a column of its own, and a row for each offset, which says at which cell it begins. They
/// are null unless they are made.
template <class MakeCell>
DOM::Table makeDamagedTable(std::size_t cells, std::vector<std::uint64_t> offsets, const MakeCell& makeCell)
{
    DOM::Table table(RowIndex(offsets.size()), ColumnIndex(cells));
    DOM::TableChunk& chunk = getFirstChunk(table);
    for (std::uint64_t column = 0; column < cells; ++column) {
        chunk.data.emplace_back(makeCell(), table.getID(ColumnIndex(column)));
    }
    chunk.rowDataOffsets = std::move(offsets);
    return table;
}

inline DOM::Table makeDamagedTable(std::size_t cells, std::vector<std::uint64_t> offsets)
{
    return makeDamagedTable(cells, std::move(offsets), [] { return std::unique_ptr<DOM::Cell>(); });
}

/// Every second row has all cells. Those between have none, but each begins behind the one before, so that no two rows can be
/// passed over at once.
inline std::vector<std::uint64_t> makeSharedOffsets(std::size_t cells, std::size_t rows)
{
    std::vector<std::uint64_t> offsets;
    for (std::size_t row = 0; row < rows; ++row) {
        offsets.push_back(row % 2 == 0 ? 0 : cells + row / 2);
    }
    return offsets;
}

} // namespace QN::Test
