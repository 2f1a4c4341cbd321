#pragma once

#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "DOM/Tables/TablePlayerParts.h"

/// Plays random operations to a table and to its model.

namespace QN::Test {

class TablePlayer {
public:
    /// The extent stays about below `limits`. What is done is told to `log`, which may be null.
    TablePlayer(Number maxChunkSize, const Pair& limits, std::ostream* log)
        : table(maxChunkSize), model(DOM::MaxRows, DOM::MaxColumns), _limits(limits), _log(log)
    {
    }

    /// One operation, which follows from the seed and from what is there. Contracts are kept.
    void play(Number seed);

    DOM::Table table;
    TableModel model;

private:
    using Position = DOM::Table::IndexIncludingTombstones;

    template <class Axis>
    struct Kept {
        typename Axis::Data data;
        ModelLine line;
    };

    template <class... Ts>
    void tell(const Ts&... parts)
    {
        if (_log != nullptr) {
            ((*_log << parts << " "), ...) << std::endl;
        }
    }
    template <class Axis>
    std::vector<Kept<Axis>>& getKept()
    {
        if constexpr (Axis::Data::IsRow) {
            return _keptRows;
        } else {
            return _keptColumns;
        }
    }
    template <class Axis>
    static const std::vector<DOM::SharedStylePtr<typename Axis::Style>>& getStyles()
    {
        static const std::vector<DOM::SharedStylePtr<typename Axis::Style>> styles{
            makeStyle<typename Axis::Style>('1'), makeStyle<typename Axis::Style>('2')};
        return styles;
    }

    std::unique_ptr<DOM::Cell> makeCell(Numbers& numbers, ModelCell& model);
    Pair choosePlace(Numbers& numbers);
    void playCell(Numbers& numbers);
    void playAreas(Numbers& numbers);
    void playExtent(Numbers& numbers);

    template <class Axis>
    void playLine(Numbers& numbers);
    template <class Axis>
    Kept<Axis> makeLine(Numbers& numbers);
    template <class Axis>
    void insertLine(Numbers& numbers);
    template <class Axis>
    void restoreLine(Numbers& numbers);
    template <class Axis>
    void insertKnownLine(Numbers& numbers);
    template <class Axis>
    void keep(typename Axis::Data data, const ModelLine& line);
    template <class Axis>
    void setStyle(Numbers& numbers);

    Pair _limits;
    std::ostream* _log;
    std::vector<Kept<RowAxis>> _keptRows;
    std::vector<Kept<ColumnAxis>> _keptColumns;
    int _lastNumber = 0;
    Number _lastID = 0;
};

inline std::unique_ptr<DOM::Cell> TablePlayer::makeCell(Numbers& numbers, ModelCell& modelCell)
{
    modelCell.number = ++_lastNumber;
    auto cell = makeNumberCell(modelCell.number);
    modelCell.address = cell.get();
    if (numbers.isOneIn(6)) {
        modelCell.captured = {numbers.below(3), numbers.below(3)};
        cell->setMergeProps(DOM::CellMergeProps(modelCell.captured.first, modelCell.captured.second));
    }
    if (numbers.isOneIn(8)) {
        modelCell.pivotSize = {1 + numbers.below(3), 1 + numbers.below(3)};
        cell->setPivotTable(makePivotTable(static_cast<unsigned int>(modelCell.pivotSize.second),
                                           static_cast<unsigned int>(modelCell.pivotSize.first)));
    }
    return cell;
}

inline Pair TablePlayer::choosePlace(Numbers& numbers)
{
    return {numbers.below(_limits.first), numbers.below(_limits.second)};
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
        playLine<RowAxis>(numbers);
    } else {
        playLine<ColumnAxis>(numbers);
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
    const Pair size{numbers.below(_limits.first + 1), numbers.below(_limits.second + 1)};
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

// Rows and columns

template <class Axis>
void TablePlayer::playLine(Numbers& numbers)
{
    using Index = typename Axis::Index;
    ModelAxis& axis = Axis::get(model);
    const Number limit = std::max(axis.count, Axis::Data::IsRow ? _limits.first : _limits.second);
    const Number kind = numbers.below(20);
    const bool isFull = axis.count >= limit;
    if (kind < 8 && !isFull) {
        insertLine<Axis>(numbers);
    } else if (kind < 11) {
        const Number at = numbers.below(limit + 1);
        tell("remove", Axis::Name, at);
        keep<Axis>(Axis::remove(table, Index(at)), Axis::remove(model, at));
    } else if (kind < 13) {
        const Number at = numbers.below(limit + axis.tombstones.getCount());
        const bool isTombstone = axis.tombstones.isTombstone(at);
        const Number live = axis.tombstones.countLiveBefore(at);
        tell("remove", Axis::Name, "at position", at);
        ModelLine line;
        if (isTombstone) {
            line.id = axis.tombstones.findID(at).value_or(0);
        }
        // A position behind the live ones changes nothing.
        if (isTombstone || live < axis.count) {
            axis.tombstones.remove(at);
        }
        if (!isTombstone) {
            line = Axis::remove(model, live);
        }
        typename Axis::Data data = Axis::remove(table, Position(at));
        keep<Axis>(std::move(data), line);
    } else if (kind < 16) {
        const Number at = numbers.below(limit + axis.tombstones.getCount());
        if (axis.tombstones.isTombstone(at)) {
            return;
        }
        tell("replace", Axis::Name, "at position", at);
        const Number live = axis.tombstones.countLiveBefore(at);
        if (live < axis.count) {
            axis.tombstones.bury(at, axis.ids[live]);
        }
        keep<Axis>(Axis::replace(table, Position(at)), Axis::remove(model, live));
    } else if (kind < 18) {
        restoreLine<Axis>(numbers);
    } else if (kind == 18) {
        insertKnownLine<Axis>(numbers);
    } else if (numbers.isOneIn(4)) {
        tell("clear tombstones of each", Axis::Name);
        Axis::clear(table);
        axis.tombstones.clear();
    } else {
        setStyle<Axis>(numbers);
    }
}

/// A new line, or one that was removed earlier.
template <class Axis>
TablePlayer::Kept<Axis> TablePlayer::makeLine(Numbers& numbers)
{
    auto& kept = getKept<Axis>();
    Kept<Axis> made;
    if (!kept.empty() && !numbers.isOneIn(3)) {
        const auto chosen = kept.begin() + static_cast<std::ptrdiff_t>(numbers.below(kept.size()));
        made = std::move(*chosen);
        kept.erase(chosen);
        return made;
    }
    ModelLine& line = made.line;
    // Right behind the predefined ones, or far above.
    line.id = Axis::get(model).predefinedCount + ++_lastID + (numbers.isOneIn(2) ? 5'000'000'000 : 0);
    made.data.id = typename Axis::ID(line.id);
    const Number others = Axis::Data::IsRow ? _limits.second : _limits.first;
    for (Number at = numbers.below(3); at < others; at += 1 + numbers.below(4)) {
        made.data.cells.emplace_back(at, makeCell(numbers, line.cells[at]));
    }
    if (numbers.isOneIn(3)) {
        made.data.style = getStyles<Axis>()[numbers.below(getStyles<Axis>().size())];
        line.style = made.data.style.get();
    }
    return made;
}

template <class Axis>
void TablePlayer::insertLine(Numbers& numbers)
{
    ModelAxis& axis = Axis::get(model);
    Kept<Axis> made = makeLine<Axis>(numbers);
    const bool byPosition = numbers.isOneIn(2);
    const Number at = numbers.below(axis.count + 1 + (byPosition ? axis.tombstones.getCount() : 0));
    const Number live = byPosition ? axis.tombstones.countLiveBefore(at) : at;
    if (live > axis.count || !axis.canInsert(live, made.line.id)) {
        return;
    }
    tell("insert", Axis::Name, byPosition ? "at position" : "at", at, "id", made.line.id, "cells",
         made.line.cells.size());
    if (byPosition) {
        Axis::insert(table, std::move(made.data), Position(at));
        axis.tombstones.insert(at);
    } else {
        Axis::insert(table, std::move(made.data), typename Axis::Index(at));
    }
    Axis::insert(model, made.line, live);
}

/// What stood in the place of a tombstone, if it is still at hand, or else another line.
template <class Axis>
void TablePlayer::restoreLine(Numbers& numbers)
{
    ModelAxis& axis = Axis::get(model);
    const Number count = axis.tombstones.getCount();
    if (count == 0) {
        return;
    }
    Number at = 0;
    for (Number passed = 1 + numbers.below(count); passed != 0; ++at) {
        passed -= axis.tombstones.isTombstone(at) ? 1 : 0;
    }
    --at;
    auto& kept = getKept<Axis>();
    const OptionalNumber id = axis.tombstones.findID(at);
    const auto own = std::find_if(kept.begin(), kept.end(),
                                  [&](const Kept<Axis>& line) { return id && line.line.id == *id; });
    Kept<Axis> made;
    if (own != kept.end()) {
        made = std::move(*own);
        kept.erase(own);
    } else {
        made = makeLine<Axis>(numbers);
    }
    const Number live = axis.tombstones.countLiveBefore(at);
    if (live > axis.count || !axis.canInsert(live, made.line.id)) {
        return;
    }
    tell("restore", Axis::Name, "at position", at, "id", made.line.id, "cells", made.line.cells.size());
    Axis::restore(table, std::move(made.data), Position(at));
    axis.tombstones.restore(at);
    Axis::insert(model, made.line, live);
}

/// An identifier that is there already changes nothing.
template <class Axis>
void TablePlayer::insertKnownLine(Numbers& numbers)
{
    ModelAxis& axis = Axis::get(model);
    const Number live = numbers.below(axis.count + 1);
    if (axis.isPredefined(axis.ids[live])) {
        return;
    }
    const auto makeData = [&] {
        typename Axis::Data data;
        data.id = typename Axis::ID(axis.ids[live]);
        ModelCell none;
        data.cells.emplace_back(0, makeCell(numbers, none));
        return data;
    };
    tell("insert each known", Axis::Name, axis.ids[live]);
    int refusals = 0;
    const auto tryTo = [&](const auto& insertion) {
        try {
            insertion();
        } catch (const DOM::Table::BadRowColIDException&) {
            ++refusals;
        }
    };
    const Number at = numbers.below(axis.count + 1);
    tryTo([&] { Axis::insert(table, makeData(), typename Axis::Index(at)); });
    tryTo([&] { Axis::insert(table, makeData(), Position(at)); });
    tryTo([&] { Axis::restore(table, makeData(), Position(at)); });
    expectSame(refusals == 3, "refusal of a known identifier");
}

/// Compares what has left the table, and keeps some of it to return.
template <class Axis>
void TablePlayer::keep(typename Axis::Data data, const ModelLine& line)
{
    expectSame(data.id.get() == line.id, "removed identifier");
    expectSame(data.style.get() == line.style, "removed style");
    expectSame(data.cells.size() == line.cells.size(), "number of removed cells");
    auto known = line.cells.begin();
    for (const auto& [index, cell] : data.cells) {
        expectSame(index.get() == known->first && cell.get() == known->second.address, "removed cell",
                   index.get());
        ++known;
    }
    auto& kept = getKept<Axis>();
    kept.push_back({std::move(data), line});
    if (kept.size() > 5) {
        kept.erase(kept.begin());
    }
}

template <class Axis>
void TablePlayer::setStyle(Numbers& numbers)
{
    ModelAxis& axis = Axis::get(model);
    const Number at = numbers.below(Axis::Data::IsRow ? _limits.first : _limits.second);
    DOM::SharedStylePtr<typename Axis::Style> style;
    if (!numbers.isOneIn(3)) {
        style = getStyles<Axis>()[numbers.below(getStyles<Axis>().size())];
    }
    tell(style ? "set" : "clear", "style of", Axis::Name, at);
    axis.setStyle(at, style.get());
    axis.ensure(at + 1);
    table.setSharedStyle(std::move(style), typename Axis::Index(at));
}

} // namespace QN::Test
