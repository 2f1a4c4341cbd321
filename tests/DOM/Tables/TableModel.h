#pragma once

#include <boost/optional/optional.hpp>

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "DOM/Tables/TableModelAxis.h"

/// A table as plainly as it can be told: maps and lists that are walked from end to end. It stands beside the real one in
/// tests, which give it the same operations.

namespace QN::Test {

/// A position, or the extent of something: rows, then columns.
using Pair = std::pair<Number, Number>;

/// A stored cell. `address` is that of the real one.
struct ModelCell {
    const void* address = nullptr;
    int number = 0;
    Pair captured{0, 0};
    Pair pivotSize{0, 0}; ///< (0, 0) without a pivot table
};

/// A row or a column that has left the table. The cells are by their position in it.
struct ModelLine {
    Number id = 0;
    const void* style = nullptr;
    std::map<Number, ModelCell> cells;
};

struct ModelRange {
    Pair begin;
    Pair end;

    bool contains(const Pair& cell) const
    {
        return begin.first <= cell.first && cell.first < end.first && begin.second <= cell.second &&
               cell.second < end.second;
    }
    bool intersects(const ModelRange& other) const
    {
        return begin.first < other.end.first && other.begin.first < end.first &&
               begin.second < other.end.second && other.begin.second < end.second;
    }
};

class TableModel {
public:
    explicit TableModel(Number maxRows, Number maxColumns) : rows(maxRows), columns(maxColumns) {}

    const ModelCell* findCell(Number row, Number column) const
    {
        const auto line = cells.find(row);
        if (line == cells.end()) {
            return nullptr;
        }
        const auto cell = line->second.find(column);
        return cell == line->second.end() ? nullptr : &cell->second;
    }
    ModelCell* findCell(Number row, Number column)
    {
        return const_cast<ModelCell*>(std::as_const(*this).findCell(row, column));
    }

    /// A cell that is created, with nothing in it.
    ModelCell& createCell(Number row, Number column);
    /// A cell that is stored at a free place.
    void setCell(Number row, Number column, const ModelCell& cell);
    void removeCell(Number row, Number column);

    void insertRow(const ModelLine& line, Number position);
    ModelLine removeRow(Number index);
    void insertColumn(const ModelLine& line, Number position);
    ModelLine removeColumn(Number index);

    void merge(const Pair& root, const Pair& captured);
    void unmerge(const Pair& root) { merged.erase(root); }
    boost::optional<ModelRange> findMerged(const Pair& cell) const;
    void addPivot(const Pair& root, const Pair& size);
    void removePivot(const Pair& root);
    boost::optional<Pair> findPivotRoot(const Pair& cell) const;
    void changeSize(Number rowsCount, Number columnsCount);
    Pair getBottomRight(bool ofMerged) const;

    ModelAxis rows;
    ModelAxis columns;
    std::map<Number, std::map<Number, ModelCell>> cells;
    std::map<Pair, Pair> merged; ///< the ends by the roots
    std::vector<ModelRange> pivots;
    boost::optional<Pair> filterEnd;
    boost::optional<Pair> headerRows; ///< the identifiers of the first and the last
    boost::optional<Pair> headerColumns;
    Number storedRows = 0; ///< one past the last row that has an entry in the storage

private:
    template <class Shift>
    void moveRanges(const Shift& shift, bool isRow, Number from, bool isRemoval);
};

inline ModelCell& TableModel::createCell(Number row, Number column)
{
    rows.ensure(row + 1);
    columns.ensure(column + 1);
    storedRows = std::max(storedRows, row + 1);
    return cells[row][column];
}

inline void TableModel::setCell(Number row, Number column, const ModelCell& cell)
{
    createCell(row, column) = cell;
    rows.ensure(row + 1 + cell.captured.first);
    columns.ensure(column + 1 + cell.captured.second);
    if (cell.captured == Pair(0, 0)) {
        unmerge({row, column});
    } else {
        merge({row, column}, cell.captured);
    }
    if (cell.pivotSize == Pair(0, 0)) {
        removePivot({row, column});
    } else {
        addPivot({row, column}, cell.pivotSize);
    }
}

inline void TableModel::removeCell(Number row, Number column)
{
    if (findCell(row, column) != nullptr) {
        cells[row].erase(column);
        unmerge({row, column});
        removePivot({row, column});
    }
}

/// Moves the ranges that lie behind a position; merged ones that are rooted on what is removed go, pivot tables stay.
template <class Shift>
void TableModel::moveRanges(const Shift& shift, bool isRow, Number from, bool isRemoval)
{
    const auto getPosition = [&](const Pair& cell) { return isRow ? cell.first : cell.second; };
    std::map<Pair, Pair> moved;
    for (const auto& [root, end] : merged) {
        if (getPosition(root) < from) {
            moved[root] = end;
        } else if (!isRemoval || getPosition(root) > from) {
            moved[shift(root)] = shift(end);
        }
    }
    merged = moved;
    for (ModelRange& range : pivots) {
        if (getPosition(range.begin) > from || (!isRemoval && getPosition(range.begin) == from)) {
            range = {shift(range.begin), shift(range.end)};
        }
    }
}

inline void TableModel::insertRow(const ModelLine& line, Number position)
{
    rows.ids.insert(rows.ids.begin() + static_cast<std::ptrdiff_t>(position), line.id);
    moveRanges([](const Pair& cell) { return Pair(cell.first + 1, cell.second); }, true, position, false);
    ++rows.count;
    storedRows = std::max(storedRows, position) + 1;

    std::map<Number, std::map<Number, ModelCell>> moved;
    for (const auto& [row, cellsOfRow] : cells) {
        moved[row < position ? row : row + 1] = cellsOfRow;
    }
    cells = moved;
    for (const auto& [column, cell] : line.cells) {
        columns.ensure(column + 1);
        cells[position][column] = cell;
        if (cell.captured != Pair(0, 0)) {
            merge({position, column}, cell.captured);
        }
        if (cell.pivotSize != Pair(0, 0)) {
            addPivot({position, column}, cell.pivotSize);
        }
    }
    if (line.style != nullptr) {
        rows.setStyle(position, line.style);
    }
}

inline ModelLine TableModel::removeRow(Number index)
{
    ModelLine line;
    line.id = rows.ids[index];
    if (index >= rows.count) {
        return line;
    }
    line.cells = cells[index];
    line.style = rows.getStyle(index);
    rows.setStyle(index, nullptr);
    std::map<Number, std::map<Number, ModelCell>> moved;
    for (const auto& [row, cellsOfRow] : cells) {
        if (row != index) {
            moved[row < index ? row : row - 1] = cellsOfRow;
        }
    }
    cells = moved;
    rows.ids.erase(rows.ids.begin() + static_cast<std::ptrdiff_t>(index));
    moveRanges([](const Pair& cell) { return Pair(cell.first - 1, cell.second); }, true, index, true);
    --rows.count;
    storedRows -= index < storedRows ? 1 : 0;
    return line;
}

inline void TableModel::insertColumn(const ModelLine& line, Number position)
{
    columns.ids.insert(columns.ids.begin() + static_cast<std::ptrdiff_t>(position), line.id);
    moveRanges([](const Pair& cell) { return Pair(cell.first, cell.second + 1); }, false, position, false);
    ++columns.count;
    for (auto& [row, cellsOfRow] : cells) {
        std::map<Number, ModelCell> moved;
        for (const auto& [column, cell] : cellsOfRow) {
            moved[column < position ? column : column + 1] = cell;
        }
        cellsOfRow = moved;
    }
    if (line.style != nullptr) {
        columns.setStyle(position, line.style);
    }
    for (const auto& [row, cell] : line.cells) {
        setCell(row, position, cell);
    }
}

inline ModelLine TableModel::removeColumn(Number index)
{
    ModelLine line;
    line.id = columns.ids[index];
    if (index >= columns.count) {
        return line;
    }
    for (auto& [row, cellsOfRow] : cells) {
        std::map<Number, ModelCell> moved;
        for (const auto& [column, cell] : cellsOfRow) {
            if (column == index) {
                line.cells[row] = cell;
            } else {
                moved[column < index ? column : column - 1] = cell;
            }
        }
        cellsOfRow = moved;
    }
    line.style = columns.getStyle(index);
    columns.setStyle(index, nullptr);
    columns.ids.erase(columns.ids.begin() + static_cast<std::ptrdiff_t>(index));
    moveRanges([](const Pair& cell) { return Pair(cell.first, cell.second - 1); }, false, index, true);
    --columns.count;
    return line;
}

inline void TableModel::merge(const Pair& root, const Pair& captured)
{
    merged[root] = {root.first + 1 + captured.first, root.second + 1 + captured.second};
}

/// The last root at or before the cell, of a range with the cell's column, decides.
inline boost::optional<ModelRange> TableModel::findMerged(const Pair& cell) const
{
    boost::optional<ModelRange> last;
    for (const auto& [root, end] : merged) {
        if (root <= cell && root.second <= cell.second && cell.second < end.second) {
            last = ModelRange{root, end};
        }
    }
    return last && cell.first < last->end.first ? last : boost::none;
}

inline void TableModel::addPivot(const Pair& root, const Pair& size)
{
    removePivot(root);
    pivots.push_back({root, {root.first + size.first, root.second + size.second}});
}

inline void TableModel::removePivot(const Pair& root)
{
    for (auto range = pivots.begin(); range != pivots.end(); ++range) {
        if (range->begin == root) {
            pivots.erase(range);
            return;
        }
    }
}

inline boost::optional<Pair> TableModel::findPivotRoot(const Pair& cell) const
{
    for (const ModelRange& range : pivots) {
        if (range.contains(cell)) {
            return range.begin;
        }
    }
    return boost::none;
}

/// The last row and the last column of all ranges, (0, 0) for none.
inline Pair TableModel::getBottomRight(bool ofMerged) const
{
    std::vector<Pair> ends;
    if (ofMerged) {
        for (const auto& [root, end] : merged) {
            ends.push_back(end);
        }
    } else {
        for (const ModelRange& range : pivots) {
            ends.push_back(range.end);
        }
    }
    Pair last{0, 0};
    for (const Pair& end : ends) {
        last.first = std::max(last.first, end.first - 1);
        last.second = std::max(last.second, end.second - 1);
    }
    return last;
}

inline void TableModel::changeSize(Number rowsCount, Number columnsCount)
{
    Number lastRow = 0;
    Number lastColumn = 0;
    for (const auto& [row, cellsOfRow] : cells) {
        for (const auto& [column, cell] : cellsOfRow) {
            lastRow = std::max(lastRow, row);
            lastColumn = std::max(lastColumn, column);
        }
    }
    const auto getLastStyled = [](const ModelAxis& axis) {
        Number last = 0;
        for (Number index = 0; index < axis.count; ++index) {
            last = axis.getStyle(index) != nullptr ? index : last;
        }
        return last;
    };
    if (rowsCount < rows.count) {
        rowsCount = std::max({rowsCount, lastRow + 1, getLastStyled(rows) + 1});
    }
    if (columnsCount < columns.count) {
        columnsCount = std::max({columnsCount, lastColumn + 1, getLastStyled(columns) + 1});
    }
    for (const bool ofMerged : {true, false}) {
        rowsCount = std::max(rowsCount, getBottomRight(ofMerged).first + 1);
        columnsCount = std::max(columnsCount, getBottomRight(ofMerged).second + 1);
    }
    if (filterEnd) {
        rowsCount = std::max(rowsCount, filterEnd->first);
        columnsCount = std::max(columnsCount, filterEnd->second);
    }
    rows.count = rowsCount;
    columns.count = columnsCount;
}

} // namespace QN::Test
