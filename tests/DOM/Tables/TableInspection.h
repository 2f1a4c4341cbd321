#pragma once

#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "DOM/Tables/TableSamples.h"
#include "Utils/Public/ClassScheme/Members.h"

/// Looks into the storage of a table, through the list of its members.

namespace QN::Test {

template <class Member>
const Member& getTableMember(const DOM::Table& table, std::string_view name)
{
    const Member* found = nullptr;
    forEachMember<DOM::Table>([&](auto member) {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(table.*member.pointer)>, Member>) {
            found = name == decltype(member)::name ? &(table.*member.pointer) : found;
        }
    });
    return *found;
}

inline const std::vector<DOM::TableChunk>& getChunks(const DOM::Table& table)
{
    return getTableMember<std::vector<DOM::TableChunk>>(table, "_chunks");
}

inline const std::vector<TableRange>& getMergedRanges(const DOM::Table& table)
{
    return getTableMember<DOM::MergedCellsCache>(table, "_mergedCellsCache").getMergedRanges();
}

inline const std::vector<TableRange>& getPivotRanges(const DOM::Table& table)
{
    return getTableMember<DOM::PivotTablesCache>(table, "_pivotTablesCache").getPivotRanges();
}

inline const std::vector<std::uint64_t>& getOffsets(const DOM::Table& table, std::size_t chunk)
{
    return getChunks(table)[chunk].rowDataOffsets;
}

using ChunkTexts = std::vector<std::string>;

/// Of each chunk the first row and then, row by row, the identifiers of the columns and the numbers of the cells.
inline ChunkTexts getChunkTexts(const DOM::Table& table)
{
    ChunkTexts texts;
    for (const DOM::TableChunk& chunk : getChunks(table)) {
        std::ostringstream text;
        text << chunk.startRowIndex.get() << ":";
        for (std::size_t row = 0; row < chunk.rowDataOffsets.size(); ++row) {
            text << (row == 0 ? "" : " |");
            const auto boundaries = chunk.getRelativeRowBoundaries(row);
            for (std::size_t place = boundaries.begin; place < boundaries.end; ++place) {
                text << " " << chunk.data[place].colID.get() << "="
                     << getNumber(chunk.data[place].cell.get());
            }
        }
        texts.push_back(text.str());
    }
    return texts;
}

} // namespace QN::Test
