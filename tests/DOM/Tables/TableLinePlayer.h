#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "DOM/Tables/TableAxes.h"
#include "DOM/Tables/TablePlayerParts.h"

namespace QN::Test {

/// Plays random operations to the rows of a table and of its model, or to their columns.
template <class Axis>
class TableLinePlayer {
public:
    explicit TableLinePlayer(PlayedTable& played)
        : _played(played), _table(played.table), _model(played.model), _axis(Axis::get(played.model))
    {
    }

    void play(Numbers& numbers);

private:
    using Data = typename Axis::Data;
    using Index = typename Axis::Index;
    using Position = typename Axis::Position;

    /// What has left the table, to return.
    struct Kept {
        Data data;
        ModelLine line;
    };

    static const std::vector<DOM::SharedStylePtr<typename Axis::Style>>& getStyles()
    {
        static const std::vector<DOM::SharedStylePtr<typename Axis::Style>> styles{
            makeStyle<typename Axis::Style>('1'), makeStyle<typename Axis::Style>('2')};
        return styles;
    }
    Number getLimit() const { return Data::IsRow ? _played.limits.first : _played.limits.second; }
    Number getOtherLimit() const { return Data::IsRow ? _played.limits.second : _played.limits.first; }

    Kept make(Numbers& numbers);
    void insert(Numbers& numbers);
    void restore(Numbers& numbers);
    void insertKnown(Numbers& numbers);
    void keep(Data data, const ModelLine& line);
    void setStyle(Numbers& numbers);

    PlayedTable& _played;
    DOM::Table& _table;
    TableModel& _model;
    ModelAxis& _axis;
    std::vector<Kept> _kept;
};

template <class Axis>
void TableLinePlayer<Axis>::play(Numbers& numbers)
{
    const Number limit = std::max(_axis.count, getLimit());
    const Number kind = numbers.below(20);
    const bool isFull = _axis.count >= limit;
    if (kind < 8 && !isFull) {
        insert(numbers);
    } else if (kind < 11) {
        const Number at = numbers.below(limit + 1);
        _played.tell("remove", Axis::Name, at);
        keep(Axis::remove(_table, Index(at)), Axis::remove(_model, at));
    } else if (kind < 13) {
        const Number at = numbers.below(limit + _axis.tombstones.getCount());
        const bool isTombstone = _axis.tombstones.isTombstone(at);
        const Number live = _axis.tombstones.countLiveBefore(at);
        _played.tell("remove", Axis::Name, "at position", at);
        ModelLine line;
        if (isTombstone) {
            line.id = _axis.tombstones.findID(at).value_or(0);
        }
        // A position behind the live ones changes nothing.
        if (isTombstone || live < _axis.count) {
            _axis.tombstones.remove(at);
        }
        if (!isTombstone) {
            line = Axis::remove(_model, live);
        }
        Data data = Axis::remove(_table, Position(at));
        keep(std::move(data), line);
    } else if (kind < 16) {
        const Number at = numbers.below(limit + _axis.tombstones.getCount());
        if (_axis.tombstones.isTombstone(at)) {
            return;
        }
        _played.tell("replace", Axis::Name, "at position", at);
        const Number live = _axis.tombstones.countLiveBefore(at);
        if (live < _axis.count) {
            _axis.tombstones.bury(at, _axis.ids[live]);
        }
        keep(Axis::replace(_table, Position(at)), Axis::remove(_model, live));
    } else if (kind < 18) {
        restore(numbers);
    } else if (kind == 18) {
        insertKnown(numbers);
    } else if (numbers.isOneIn(4)) {
        _played.tell("clear tombstones of each", Axis::Name);
        Axis::clear(_table);
        _axis.tombstones.clear();
    } else {
        setStyle(numbers);
    }
}

/// A new line, or one that was removed earlier.
template <class Axis>
typename TableLinePlayer<Axis>::Kept TableLinePlayer<Axis>::make(Numbers& numbers)
{
    Kept made;
    if (!_kept.empty() && !numbers.isOneIn(3)) {
        const auto chosen = _kept.begin() + static_cast<std::ptrdiff_t>(numbers.below(_kept.size()));
        made = std::move(*chosen);
        _kept.erase(chosen);
        return made;
    }
    ModelLine& line = made.line;
    // Right behind the predefined ones, or far above.
    line.id = _axis.predefinedCount + _played.countLine() + (numbers.isOneIn(2) ? 5'000'000'000 : 0);
    made.data.id = typename Axis::ID(line.id);
    const Number others = getOtherLimit();
    for (Number at = numbers.below(3); at < others; at += 1 + numbers.below(4)) {
        made.data.cells.emplace_back(at, _played.makeCell(numbers, line.cells[at]));
    }
    if (numbers.isOneIn(3)) {
        made.data.style = getStyles()[numbers.below(getStyles().size())];
        line.style = made.data.style.get();
    }
    return made;
}

template <class Axis>
void TableLinePlayer<Axis>::insert(Numbers& numbers)
{
    Kept made = make(numbers);
    const bool byPosition = numbers.isOneIn(2);
    const Number at = numbers.below(_axis.count + 1 + (byPosition ? _axis.tombstones.getCount() : 0));
    const Number live = byPosition ? _axis.tombstones.countLiveBefore(at) : at;
    if (live > _axis.count || !_axis.canInsert(live, made.line.id)) {
        return;
    }
    _played.tell("insert", Axis::Name, byPosition ? "at position" : "at", at, "id", made.line.id, "cells",
                 made.line.cells.size());
    if (byPosition) {
        Axis::insert(_table, std::move(made.data), Position(at));
        _axis.tombstones.insert(at);
    } else {
        Axis::insert(_table, std::move(made.data), Index(at));
    }
    Axis::insert(_model, made.line, live);
}

/// What stood in the place of a tombstone, if it is still at hand, or else another line.
template <class Axis>
void TableLinePlayer<Axis>::restore(Numbers& numbers)
{
    const Number count = _axis.tombstones.getCount();
    if (count == 0) {
        return;
    }
    Number at = 0;
    for (Number passed = 1 + numbers.below(count); passed != 0; ++at) {
        passed -= _axis.tombstones.isTombstone(at) ? 1 : 0;
    }
    --at;
    const OptionalNumber id = _axis.tombstones.findID(at);
    const auto own =
        std::find_if(_kept.begin(), _kept.end(), [&](const Kept& line) { return id && line.line.id == *id; });
    Kept made;
    if (own != _kept.end()) {
        made = std::move(*own);
        _kept.erase(own);
    } else {
        made = make(numbers);
    }
    const Number live = _axis.tombstones.countLiveBefore(at);
    if (live > _axis.count || !_axis.canInsert(live, made.line.id)) {
        return;
    }
    _played.tell("restore", Axis::Name, "at position", at, "id", made.line.id, "cells",
                 made.line.cells.size());
    Axis::restore(_table, std::move(made.data), Position(at));
    _axis.tombstones.restore(at);
    Axis::insert(_model, made.line, live);
}

/// An identifier that is there already changes nothing.
template <class Axis>
void TableLinePlayer<Axis>::insertKnown(Numbers& numbers)
{
    const Number live = numbers.below(_axis.count + 1);
    if (_axis.isPredefined(_axis.ids[live])) {
        return;
    }
    const auto makeData = [&] {
        Data data;
        data.id = typename Axis::ID(_axis.ids[live]);
        ModelCell none;
        data.cells.emplace_back(0, _played.makeCell(numbers, none));
        return data;
    };
    _played.tell("insert each known", Axis::Name, _axis.ids[live]);
    int refusals = 0;
    const auto tryTo = [&](const auto& insertion) {
        try {
            insertion();
        } catch (const DOM::Table::BadRowColIDException&) {
            ++refusals;
        }
    };
    const Number at = numbers.below(_axis.count + 1);
    tryTo([&] { Axis::insert(_table, makeData(), Index(at)); });
    tryTo([&] { Axis::insert(_table, makeData(), Position(at)); });
    tryTo([&] { Axis::restore(_table, makeData(), Position(at)); });
    expectSame(refusals == 3, "refusal of a known identifier");
}

/// Compares what has left the table, and keeps some of it to return.
template <class Axis>
void TableLinePlayer<Axis>::keep(Data data, const ModelLine& line)
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
    _kept.push_back({std::move(data), line});
    if (_kept.size() > 5) {
        _kept.erase(_kept.begin());
    }
}

template <class Axis>
void TableLinePlayer<Axis>::setStyle(Numbers& numbers)
{
    const Number at = numbers.below(getLimit());
    DOM::SharedStylePtr<typename Axis::Style> style;
    if (!numbers.isOneIn(3)) {
        style = getStyles()[numbers.below(getStyles().size())];
    }
    _played.tell(style ? "set" : "clear", "style of", Axis::Name, at);
    _axis.setStyle(at, style.get());
    _axis.ensure(at + 1);
    _table.setSharedStyle(std::move(style), Index(at));
}

} // namespace QN::Test
