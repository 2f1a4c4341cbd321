#pragma once

#include <boost/optional/optional.hpp>

#include <algorithm>
#include <cstdint>
#include <map>
#include <vector>

/// The rows, or the columns, of a table as plainly as they can be told.

namespace QN::Test {

using Number = std::uint64_t;
using OptionalNumber = boost::optional<Number>;

/// The tombstones of an axis: a sequence that is live throughout behind the end of the list.
class ModelTombstones {
public:
    bool isTombstone(Number position) const { return position < _dead.size() && _dead[position]; }

    Number countLiveBefore(Number position) const
    {
        Number live = 0;
        for (Number before = 0; before < position; ++before) {
            live += isTombstone(before) ? 0 : 1;
        }
        return live;
    }
    Number findLive(Number index) const
    {
        Number position = 0;
        while (isTombstone(position) || countLiveBefore(position) != index) {
            ++position;
        }
        return position;
    }
    Number getCount() const { return static_cast<Number>(std::count(_dead.begin(), _dead.end(), true)); }
    const std::map<Number, Number>& getPositions() const { return _positions; }
    OptionalNumber findID(Number position) const
    {
        for (const auto& [id, where] : _positions) {
            if (where == position) {
                return id;
            }
        }
        return boost::none;
    }

    void insert(Number position)
    {
        for (auto& [id, where] : _positions) {
            where += where >= position ? 1 : 0;
        }
        cover(position);
        _dead.insert(at(position), false);
    }
    void remove(Number position)
    {
        forget(position);
        for (auto& [id, where] : _positions) {
            where -= where > position ? 1 : 0;
        }
        cover(position);
        _dead.erase(at(position));
    }
    void bury(Number position, Number id)
    {
        _positions[id] = position;
        cover(position);
        _dead[position] = true;
    }
    void restore(Number position)
    {
        forget(position);
        _dead[position] = false;
    }
    void clear()
    {
        _dead.clear();
        _positions.clear();
    }

private:
    std::vector<bool>::iterator at(Number position)
    {
        return _dead.begin() + static_cast<std::ptrdiff_t>(position);
    }
    void cover(Number position)
    {
        if (_dead.size() <= position) {
            _dead.resize(position + 1, false);
        }
    }
    void forget(Number position)
    {
        if (const auto id = findID(position)) {
            _positions.erase(*id);
        }
    }

    std::vector<bool> _dead;
    std::map<Number, Number> _positions;
};

/// The rows, or the columns: how many are live, who they are, their styles and tombstones.
struct ModelAxis {
    explicit ModelAxis(Number predefined) : predefinedCount(predefined) { resetIDs(); }

    /// The identifiers of the first positions, also of those behind the live ones.
    void resetIDs()
    {
        ids.clear();
        for (Number position = 0; position < KnownIDs; ++position) {
            ids.push_back(position + 1);
        }
    }
    OptionalNumber findIndex(Number id) const
    {
        for (Number index = 0; index < ids.size(); ++index) {
            if (ids[index] == id) {
                return index;
            }
        }
        return boost::none;
    }
    bool isPredefined(Number id) const { return id <= predefinedCount; }

    /// Whether an identifier may be given to a new position: inserted ones anywhere, predefined ones in their order.
    bool canInsert(Number index, Number id) const
    {
        if (findIndex(id)) {
            return false;
        }
        for (Number other = 0; isPredefined(id) && other < ids.size(); ++other) {
            if (isPredefined(ids[other]) && (other < index) != (ids[other] < id)) {
                return false;
            }
        }
        return true;
    }
    /// Where an identifier stands, or would stand; as the end of a range, the one before that.
    OptionalNumber resolve(Number id, bool asEnd) const
    {
        if (const auto index = findIndex(id)) {
            return index;
        }
        const auto tombstone = tombstones.getPositions().find(id);
        if (tombstone == tombstones.getPositions().end()) {
            return boost::none;
        }
        const Number place = tombstones.countLiveBefore(tombstone->second);
        if (!asEnd) {
            return place;
        }
        return boost::make_optional(place != 0, place - 1);
    }
    const void* getStyle(Number index) const
    {
        const auto style = styles.find(ids[index]);
        return style == styles.end() ? nullptr : style->second;
    }
    void setStyle(Number index, const void* style)
    {
        if (style == nullptr) {
            styles.erase(ids[index]);
        } else {
            styles[ids[index]] = style;
        }
    }
    void ensure(Number least) { count = std::max(count, least); }

    static constexpr Number KnownIDs = 80;

    Number predefinedCount;
    Number count = 0;
    std::vector<Number> ids;
    std::map<Number, const void*> styles;
    ModelTombstones tombstones;
};

} // namespace QN::Test
