#pragma once

#include <cstdint>
#include <vector>

#include "DOM/Tables/TableInspection.h"
#include "DOM/Tables/TablePlayer.h"
#include "DOM/Tables/TablePrinters.h"

/// Compares all that can be seen of a table with its model. The first difference is thrown.

namespace QN::Test {

/// The cells and styles of a copy have other addresses than those of the model.
enum class CompareBy { Address, Content };

class TableComparison {
public:
    TableComparison(const DOM::Table& table, const TableModel& model) : _table(table), _model(model) {}

    void compare(Numbers& numbers, CompareBy by) const
    {
        compareExtent();
        compareHeaders();
        compareStorage();
        compareAreas();
        compareAreasAt(numbers.below(_model.rows.count + 1), numbers.below(_model.columns.count + 1));
        compareCells(by);
        comparePlaces(by);
        compareAxis<RowIndex, DOM::RowID>(_model.rows, by);
        compareAxis<ColumnIndex, DOM::ColumnID>(_model.columns, by);
        compareRange(numbers, by);
    }

private:
    using Position = DOM::Table::IndexIncludingTombstones;

    void compareExtent() const
    {
        expectSame(_table.getLiveRowsCount().get() == _model.rows.count, "rows count", _model.rows.count);
        expectSame(_table.getLiveColsCount().get() == _model.columns.count, "columns count", 0,
                   _model.columns.count);
        expectSame(_table.getAllRowsCount().get() == _model.rows.count + _model.rows.tombstones.getCount(),
                   "all rows count");
        expectSame(_table.getAllColsCount().get() ==
                       _model.columns.count + _model.columns.tombstones.getCount(),
                   "all columns count");
        expectSame(_table.getMaxRowIndex().get() == _model.storedRows, "stored rows", _model.storedRows);
        const Pair merged = _model.getBottomRight(true);
        const Pair pivots = _model.getBottomRight(false);
        if (std::max(merged.first, pivots.first) < _model.rows.count &&
            std::max(merged.second, pivots.second) < _model.columns.count) {
            _table.validate();
        }
    }

    /// The first and how many; (0, 0) where nothing is left.
    static Pair resolveHeaders(const ModelAxis& axis, const Pair& ids)
    {
        const auto begin = axis.resolve(ids.first, false);
        const auto last = axis.resolve(ids.second, true);
        return begin && last && *begin <= *last ? Pair(*begin, *last + 1 - *begin) : Pair(0, 0);
    }

    void compareHeaders() const
    {
        const auto frozen = _table.getFrozenRange();
        expectSame(frozen.has_value() == _model.headerRows.has_value(), "headers");
        if (frozen) {
            const Pair rows = resolveHeaders(_model.rows, *_model.headerRows);
            const Pair columns = resolveHeaders(_model.columns, *_model.headerColumns);
            expectSame(frozen->begin == makeIndex(rows.first, columns.first) &&
                           frozen->size == Size2D<Number>(columns.second, rows.second),
                       "frozen range", rows.first, columns.first);
        }
    }

    void compareStorage() const
    {
        const auto& chunks = getChunks(_table);
        expectSame(!chunks.empty(), "chunks");
        RowIndex next(0);
        for (const DOM::TableChunk& chunk : chunks) {
            expectSame(chunk.startRowIndex == next, "start of a chunk", next.get());
            expectSame(chunks.size() == 1 || !chunk.rowDataOffsets.empty(), "chunk without rows");
            next = chunk.getEndRow();
            std::uint64_t last = 0;
            for (const std::uint64_t offset : chunk.rowDataOffsets) {
                expectSame(last <= offset && offset <= chunk.data.size(), "offset",
                           chunk.startRowIndex.get());
                last = offset;
            }
            expectSame(chunk.rowDataOffsets.empty() ? chunk.data.empty() : chunk.rowDataOffsets.front() == 0,
                       "first offset");
        }
    }

    static bool isCell(const DOM::Cell* cell, const ModelCell* model, CompareBy by)
    {
        if (model == nullptr || cell == nullptr) {
            return model == nullptr && cell == nullptr;
        }
        if (by == CompareBy::Content &&
            getNumber(cell) != (model->number == 0 ? -1.0 : static_cast<double>(model->number))) {
            return false;
        }
        const DOM::PivotTable* const pivot = cell->getPivotTable();
        const Pair pivotSize =
            pivot != nullptr ? Pair(pivot->getSize().getHeight(), pivot->getSize().getWidth()) : Pair(0, 0);
        const DOM::CellMergeProps& props = cell->getMergeProps();
        return (by == CompareBy::Content || cell == model->address) && pivotSize == model->pivotSize &&
               Pair(props.getCapturedRowsCount(), props.getCapturedColsCount()) == model->captured;
    }

    static bool isSameCell(const DOM::Cell* cell, const ModelCell* known, CompareBy by)
    {
        if (by == CompareBy::Content || known == nullptr) {
            return (cell == nullptr) == (known == nullptr);
        }
        return cell == known->address;
    }

    /// The walk over all stored cells, forth and back.
    void compareCells(CompareBy by) const
    {
        auto it = _table.getTableIterators().first;
        for (const auto& [row, cells] : _model.cells) {
            for (const auto& [column, cell] : cells) {
                expectSame(!it.isAtEnd() && it.getRowIndex().get() == row &&
                               it.getColIndex().get() == column && isCell(*it, &cell, by),
                           "walk", row, column);
                expectSame(_table.getCellById(DOM::RowID(_model.rows.ids[row]),
                                              DOM::ColumnID(_model.columns.ids[column])) == *it,
                           "cell by identifiers", row, column);
                ++it;
            }
        }
        expectSame(it.isAtEnd() && it == _table.getTableIterators().second, "end of the walk");
        for (auto cells = _model.cells.rbegin(); cells != _model.cells.rend(); ++cells) {
            for (auto cell = cells->second.rbegin(); cell != cells->second.rend(); ++cell) {
                --it;
                expectSame(it.getRowIndex().get() == cells->first && it.getColIndex().get() == cell->first,
                           "walk backwards", cells->first, cell->first);
            }
        }
    }

    /// Each position, and those right behind the extent.
    void comparePlaces(CompareBy by) const
    {
        auto it = _table.getTableLogicalBeginIt();
        for (Number row = 0; row <= _model.rows.count; ++row) {
            for (Number column = 0; column <= _model.columns.count; ++column) {
                const DOM::Cell* const cell = _table.getCell(RowIndex(row), ColumnIndex(column));
                const ModelCell* const known = _model.findCell(row, column);
                expectSame(isSameCell(cell, known, by), "cell", row, column);
                if (row < _model.rows.count && column < _model.columns.count) {
                    expectSame(it.getRowIndex().get() == row && it.getColIndex().get() == column &&
                                   *it == cell,
                               "walk over all positions", row, column);
                    ++it;
                }
            }
        }
        expectSame(it == _table.getTableLogicalEndIt(), "end of the walk over all positions");
    }

    static TableRange makeTableRange(const Pair& begin, const Pair& end)
    {
        return makeRange(begin.first, end.first, begin.second, end.second);
    }

    void compareAreas() const
    {
        const auto& merged = getMergedRanges(_table);
        expectSame(merged.size() == _model.merged.size(), "number of merged ranges");
        auto range = merged.begin();
        for (const auto& [root, end] : _model.merged) {
            expectSame(*range == makeTableRange(root, end), "merged range", root.first, root.second);
            ++range;
        }
        const auto& pivots = getPivotRanges(_table);
        expectSame(pivots.size() == _model.pivots.size(), "number of pivot tables");
        for (std::size_t place = 0; place < pivots.size(); ++place) {
            const ModelRange& pivot = _model.pivots[place];
            expectSame(pivots[place] == makeTableRange(pivot.begin, pivot.end), "pivot table",
                       pivot.begin.first, pivot.begin.second);
        }
    }

    /// At one place, since the answers follow from the ranges alone.
    void compareAreasAt(Number row, Number column) const
    {
        const auto merged = _table.getMergedRange(RowIndex(row), ColumnIndex(column));
        const auto expected = _model.findMerged({row, column});
        expectSame(merged.has_value() == expected.has_value() &&
                       (!merged || *merged == makeTableRange(expected->begin, expected->end)),
                   "merged range", row, column);
        const auto root = _table.getMergedCellRoot(RowIndex(row), ColumnIndex(column));
        const bool hasRoot = expected && expected->begin != Pair(row, column);
        expectSame(hasRoot ? root && *root == makeIndex(expected->begin.first, expected->begin.second)
                           : !root,
                   "merged root", row, column);
        const auto pivot = _table.getPivotRoot(RowIndex(row), ColumnIndex(column));
        const auto expectedPivot = _model.findPivotRoot({row, column});
        expectSame(pivot.has_value() == expectedPivot.has_value() &&
                       (!pivot || *pivot == makeIndex(expectedPivot->first, expectedPivot->second)),
                   "pivot root", row, column);
    }

    static Position convert(const DOM::Table& table, RowIndex index) { return table.convertRowIndex(index); }
    static Position convert(const DOM::Table& table, ColumnIndex index)
    {
        return table.convertColIndex(index);
    }
    template <class Index>
    static boost::optional<Index> convert(const DOM::Table& table, Position position)
    {
        if constexpr (std::is_same_v<Index, RowIndex>) {
            return table.convertRowIndex(position);
        } else {
            return table.convertColIndex(position);
        }
    }
    static boost::optional<RowIndex> resolve(const DOM::Table& table, DOM::RowID id, bool asEnd)
    {
        return table.resolveRowIndex(id, asEnd);
    }
    static boost::optional<ColumnIndex> resolve(const DOM::Table& table, DOM::ColumnID id, bool asEnd)
    {
        return table.resolveColIndex(id, asEnd);
    }
    bool isCut(RowIndex row) const { return _table.canInsertRow(row); }
    bool isCut(ColumnIndex column) const { return _table.canInsertColumn(column); }
    static Number getInsertionPlace(const DOM::Table& table, Position at, RowIndex /*axis*/)
    {
        return table.getRowIndexToInsertTo(at).get();
    }
    static Number getInsertionPlace(const DOM::Table& table, Position at, ColumnIndex /*axis*/)
    {
        return table.getColIndexToInsertTo(at).get();
    }

    template <class Index>
    static bool isSame(const boost::optional<Index>& index, const OptionalNumber& expected)
    {
        return index.has_value() == expected.has_value() && (!index || index->get() == *expected);
    }

    /// Identifiers, styles, tombstones, and the positions that cut a pivot table.
    template <class Index, class ID>
    void compareAxis(const ModelAxis& axis, CompareBy by) const
    {
        constexpr bool IsRow = std::is_same_v<Index, RowIndex>;
        const char* const name = IsRow ? "row" : "column";
        for (Number index = 0; index <= axis.count; ++index) {
            const ID id(axis.ids[index]);
            expectSame(_table.getID(Index(index)) == id, IsRow ? "row identifier" : "column identifier",
                       index);
            expectSame(isSame(_table.getIndex(id), index), "index of an identifier", index);
            const void* const style = _table.getSharedStyle(Index(index)).get();
            expectSame(by == CompareBy::Address ? style == axis.getStyle(index)
                                                : (style == nullptr) == (axis.getStyle(index) == nullptr),
                       "style", index);
            bool cuts = false;
            for (const ModelRange& range : _model.pivots) {
                const Number begin = IsRow ? range.begin.first : range.begin.second;
                const Number end = IsRow ? range.end.first : range.end.second;
                cuts = cuts || (begin < index && index < end);
            }
            expectSame(isCut(Index(index)) == cuts, "cut of a pivot table", index);
        }
        const ModelTombstones& tombstones = axis.tombstones;
        // Without tombstones both ways of counting are the same, which few positions show.
        const Number all = tombstones.getCount() == 0 ? 2 : axis.count + tombstones.getCount() + 1;
        Number live = 0;
        for (Number position = 0; position < all; ++position) {
            const bool isTombstone = tombstones.isTombstone(position);
            expectSame(getInsertionPlace(_table, Position(position), Index(0)) == live, "place to insert to",
                       position);
            expectSame(
                isSame(convert<Index>(_table, Position(position)), boost::make_optional(!isTombstone, live)),
                "live index", position);
            if (!isTombstone) {
                expectSame(convert(_table, Index(live)).get() == position, "position among tombstones", live);
                ++live;
            }
        }
        for (const auto& [id, position] : tombstones.getPositions()) {
            for (const bool asEnd : {false, true}) {
                expectSame(isSame(resolve(_table, ID(id), asEnd), axis.resolve(id, asEnd)), name, id, asEnd);
            }
            expectSame(isSame(_table.getIndex(ID(id)), axis.findIndex(id)), "index of a tombstone", id);
        }
    }

    /// Walks a part of the table and a little beyond, stored cells and all positions, forth and back.
    void compareRange(Numbers& numbers, CompareBy by) const
    {
        const Pair begin{numbers.below(_model.rows.count + 1), numbers.below(_model.columns.count + 1)};
        const ModelRange range{begin,
                               {begin.first + 1 + numbers.below(4), begin.second + 1 + numbers.below(4)}};
        const TableRange tableRange = makeTableRange(range.begin, range.end);
        std::vector<Pair> roots;
        for (const ModelRange& pivot : _model.pivots) {
            if (pivot.intersects(range)) {
                roots.push_back(pivot.begin);
            }
        }
        expectSame(_table.isPivotTablesInRange(tableRange) == !roots.empty(), "pivot tables in a range");
        const auto found = _table.getPivotTablesInRange(tableRange);
        expectSame(found.size() == roots.size(), "number of pivot tables in a range");
        for (std::size_t place = 0; place < roots.size(); ++place) {
            expectSame(found[place] == makeIndex(roots[place].first, roots[place].second),
                       "pivot table in a range");
        }

        const auto stored = _table.getRangeIterators(tableRange);
        auto it = stored.first;
        auto all = _table.getRangeLogicalIterators(tableRange).first;
        std::vector<Pair> places;
        for (Number row = range.begin.first; row < range.end.first; ++row) {
            for (Number column = range.begin.second; column < range.end.second; ++column) {
                const ModelCell* const known = _model.findCell(row, column);
                expectSame(all.getRowIndex().get() == row && all.getColIndex().get() == column &&
                               isSameCell(*all, known, by),
                           "walk over the positions of a range", row, column);
                ++all;
                if (known != nullptr) {
                    places.emplace_back(row, column);
                    expectSame(it.getRowIndex().get() == row && it.getColIndex().get() == column &&
                                   isSameCell(*it, known, by),
                               "walk over a range", row, column);
                    ++it;
                }
            }
        }
        expectSame(all == _table.getRangeLogicalEndIt(tableRange), "end of the positions of a range");
        expectSame(it == stored.second, "end of a range");
        for (; !places.empty(); places.pop_back()) {
            --it;
            const auto [row, column] = places.back();
            expectSame(it.getRowIndex().get() == row && it.getColIndex().get() == column,
                       "walk back over a range", row, column);
        }
    }

    const DOM::Table& _table;
    const TableModel& _model;
};

} // namespace QN::Test
