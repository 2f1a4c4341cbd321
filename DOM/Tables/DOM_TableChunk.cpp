#include "DOM/Tables/DOM_TableChunk.h"

#include <algorithm>
#include <iterator>

#include "Utils/Public/TableIndices/RowColumnIndices.h"

namespace QN::DOM {

CellDataByCol::CellDataByCol(const CellDataByCol& other)
    : cell(other.cell ? std::make_unique<Cell>(*other.cell) : nullptr), colID(other.colID)
{
}

std::size_t TableChunk::getRelativeRow(RowIndex row) const
{
    return getDistance(row, startRowIndex);
}

TableChunk::Boundaries TableChunk::getRelativeRowBoundaries(std::size_t relativeRow) const
{
    const std::size_t size = data.size();
    if (relativeRow >= rowDataOffsets.size()) {
        return {size, size};
    }
    const std::size_t begin = std::min<std::size_t>(rowDataOffsets[relativeRow], size);
    const std::size_t end = relativeRow + 1 < rowDataOffsets.size()
                                ? std::min<std::size_t>(rowDataOffsets[relativeRow + 1], size)
                                : size;
    return {begin, std::max(begin, end)};
}

void TableChunk::extendTo(std::size_t relativeRow)
{
    if (relativeRow >= rowDataOffsets.size()) {
        rowDataOffsets.resize(relativeRow + 1, data.size());
    }
}

void TableChunk::shiftRows(std::size_t relativeRow, std::int64_t delta)
{
    if (delta == 0) {
        return;
    }
    const std::uint64_t raised = delta > 0 ? static_cast<std::uint64_t>(delta) : 0;
    const std::uint64_t lowered = delta < 0 ? static_cast<std::uint64_t>(-delta) : 0;
    for (std::size_t row = relativeRow + 1; row < rowDataOffsets.size(); ++row) {
        rowDataOffsets[row] += raised - std::min(rowDataOffsets[row], lowered);
    }
}

std::size_t TableChunk::getChunkMedian() const
{
    const std::size_t rows = rowDataOffsets.size();
    if (rows < 2) {
        return 0;
    }
    const auto offset = std::lower_bound(rowDataOffsets.begin(), rowDataOffsets.end(), data.size() / 2);
    const auto median = static_cast<std::size_t>(offset - rowDataOffsets.begin());
    return std::clamp<std::size_t>(median, 1, rows - 1);
}

TableChunk TableChunk::split(std::size_t median)
{
    const auto firstOffset = rowDataOffsets.begin() + static_cast<std::ptrdiff_t>(median);
    const std::uint64_t remaining = std::min<std::uint64_t>(*firstOffset, data.size());
    const auto firstCell = data.begin() + static_cast<std::ptrdiff_t>(remaining);

    TableChunk tail;
    tail.startRowIndex = startRowIndex + median;
    tail.rowDataOffsets.reserve(rowDataOffsets.size() - median);
    std::transform(firstOffset, rowDataOffsets.end(), std::back_inserter(tail.rowDataOffsets),
                   [&](std::uint64_t offset) { return offset - std::min(offset, remaining); });
    tail.data.reserve(data.size() - remaining);
    std::move(firstCell, data.end(), std::back_inserter(tail.data));

    // Most chunks never grow again: they keep no room for it.
    data.erase(firstCell, data.end());
    data.shrink_to_fit();
    rowDataOffsets.erase(firstOffset, rowDataOffsets.end());
    rowDataOffsets.shrink_to_fit();
    return tail;
}

} // namespace QN::DOM
