#pragma once

#include <map>
#include <utility>

#include "DOM/Tables/TableLinePlayer.h"
#include "DOM/Tables/TablePlayerParts.h"

/// Plays random operations to a table and to its model.

namespace QN::Test {

class TablePlayer : public PlayedTable {
public:
    using PlayedTable::PlayedTable;

    /// One operation, which follows from the seed and from what is there. Contracts are kept.
    void play(Number seed);

private:
    Pair choosePlace(Numbers& numbers);
    void playCell(Numbers& numbers);
    void playAreas(Numbers& numbers);
    void playExtent(Numbers& numbers);

    TableLinePlayer<RowAxis> _rows{*this};
    TableLinePlayer<ColumnAxis> _columns{*this};
};

inline Pair TablePlayer::choosePlace(Numbers& numbers)
{
    return {numbers.below(limits.first), numbers.below(limits.second)};
}

inline void TablePlayer::play(Number seed)
{
    Numbers numbers(seed);
    const Number kind = numbers.below(20);
    if (kind < 6) {
        playCell(numbers);
    } else if (kind < 9) {
        playAreas(numbers);
    } else if (kind < 10) {
        playExtent(numbers);
    } else if (kind < 15) {
        _rows.play(numbers);
    } else {
        _columns.play(numbers);
    }
}

inline void TablePlayer::playCell(Numbers& numbers)
{
    const auto [row, column] = choosePlace(numbers);
    const ModelCell* const known = model.findCell(row, column);
    const Number kind = numbers.below(4);
    if (kind == 0) {
        tell("removeCell", row, column);
        table.removeCell(RowIndex(row), ColumnIndex(column));
        model.removeCell(row, column);
    } else if (known != nullptr || kind == 1) {
        tell("getOrCreateCell", row, column);
        const DOM::Cell& cell = table.getOrCreateCell(RowIndex(row), ColumnIndex(column));
        if (known == nullptr) {
            model.createCell(row, column).address = &cell;
        }
        expectSame(model.findCell(row, column)->address == &cell, "getOrCreateCell", row, column);
    } else {
        ModelCell modelCell;
        auto cell = makeCell(numbers, modelCell);
        if (kind == 2) {
            modelCell.captured = {numbers.below(3), numbers.below(2)};
            const DOM::CellMergeProps props(modelCell.captured.first, modelCell.captured.second);
            table.setCell(RowIndex(row), ColumnIndex(column), std::move(cell), props);
        } else {
            table.setCell(RowIndex(row), ColumnIndex(column), std::move(cell));
        }
        tell("setCell", row, column, "merged", modelCell.captured.first, modelCell.captured.second, "pivot",
             modelCell.pivotSize.first, modelCell.pivotSize.second);
        model.setCell(row, column, modelCell);
    }
}

inline void TablePlayer::playAreas(Numbers& numbers)
{
    const Pair place = choosePlace(numbers);
    const RowIndex row(place.first);
    const ColumnIndex column(place.second);
    ModelCell* known = model.findCell(place.first, place.second);
    const Number kind = numbers.below(4);
    if (kind < 2) {
        const Pair captured = kind == 0 ? Pair(0, 0) : Pair(numbers.below(3), numbers.below(3));
        tell("setMergeProps", place.first, place.second, "to", captured.first, captured.second);
        table.setMergeProps(row, column, captured.first, captured.second);
        if (captured == Pair(0, 0)) {
            model.unmerge(place);
        } else {
            if (known == nullptr) {
                known = &model.createCell(place.first, place.second);
                known->address = table.getCell(row, column);
            }
            model.merge(place, captured);
            model.rows.ensure(place.first + 1 + captured.first);
            model.columns.ensure(place.second + 1 + captured.second);
        }
        if (known != nullptr) {
            known->captured = captured;
        }
    } else if (kind == 2) {
        const Pair size{1 + numbers.below(3), 1 + numbers.below(3)};
        tell("setPivotTable", place.first, place.second, "of", size.first, size.second);
        table.setPivotTable(
            row, column,
            makePivotTable(static_cast<unsigned int>(size.second), static_cast<unsigned int>(size.first)));
        if (known == nullptr) {
            known = &model.createCell(place.first, place.second);
            known->address = table.getCell(row, column);
        }
        known->pivotSize = size;
        model.addPivot(place, size);
    } else {
        tell("removePivotTable", place.first, place.second);
        table.removePivotTable(row, column);
        model.removePivot(place);
        if (known != nullptr) {
            known->pivotSize = {0, 0};
        }
    }
}

inline void TablePlayer::playExtent(Numbers& numbers)
{
    const Pair size{numbers.below(limits.first + 1), numbers.below(limits.second + 1)};
    switch (numbers.below(7)) {
    case 0:
        tell("ensureSize", size.first, size.second);
        table.ensureSize(RowIndex(size.first), ColumnIndex(size.second));
        model.rows.ensure(size.first);
        model.columns.ensure(size.second);
        break;
    case 1:
        tell("setFilterInfo to", 2 + size.first, 1 + size.second);
        table.setFilterInfo(DOM::TableFilterInfo(makeRange(0, 2 + size.first, 0, 1 + size.second)));
        model.filterEnd = Pair(2 + size.first, 1 + size.second);
        break;
    case 2:
        tell("setFilterInfo to none");
        table.setFilterInfo(boost::none);
        model.filterEnd.reset();
        break;
    case 3: {
        const Pair last{size.first + numbers.below(4), size.second + numbers.below(4)};
        tell("setHeaderRowsCols", size.first, size.second, "to", last.first, last.second);
        table.setHeaderRowsCols(RowIndex(size.first), ColumnIndex(size.second), RowIndex(last.first),
                                ColumnIndex(last.second));
        model.headerRows = Pair(model.rows.ids[size.first], model.rows.ids[last.first]);
        model.headerColumns = Pair(model.columns.ids[size.second], model.columns.ids[last.second]);
        break;
    }
    case 4: {
        tell("resetRowColumnIDsToPredefined");
        table.resetRowColumnIDsToPredefined();
        for (ModelAxis* const axis : {&model.rows, &model.columns}) {
            std::map<Number, const void*> styles;
            for (const auto& [id, style] : axis->styles) {
                styles[*axis->findIndex(id) + 1] = style;
            }
            axis->styles = styles;
            axis->resetIDs();
        }
        break;
    }
    default: {
        tell("changeSize", size.first, size.second);
        const CellIndex changed = table.changeSize(RowIndex(size.first), ColumnIndex(size.second));
        model.changeSize(size.first, size.second);
        expectSame(changed == makeIndex(model.rows.count, model.columns.count), "changeSize");
    }
    }
}

} // namespace QN::Test
