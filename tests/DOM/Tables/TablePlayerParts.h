#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "DOM/Tables/TableModel.h"
#include "DOM/Tables/TableSamples.h"

/// What `TablePlayer` is made of: the table and the model that are played, and random numbers.

namespace QN::Test {

/// What is found to differ.
struct Difference {
    std::string text;
};

inline void expectSame(bool same, const char* what, Number row = 0, Number column = 0)
{
    if (!same) {
        throw Difference{std::string(what) + " at " + std::to_string(row) + ", " + std::to_string(column)};
    }
}

/// The numbers that follow from a seed.
class Numbers {
public:
    explicit Numbers(Number seed) : _state(seed) {}

    Number below(Number limit) { return next() % limit; }
    bool isOneIn(Number count) { return below(count) == 0; }

    Number next()
    {
        _state += 0x9E3779B97F4A7C15;
        Number mixed = _state;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EB;
        return mixed ^ (mixed >> 31);
    }

private:
    Number _state;
};

/// A table and its model, which are given the same operations, and what these are made of.
class PlayedTable {
public:
    /// The extent stays about below `extent`. What is done is told to `log`, which may be null.
    PlayedTable(Number maxChunkSize, const Pair& extent, std::ostream* log)
        : table(maxChunkSize), model(DOM::MaxRows, DOM::MaxColumns), limits(extent), _log(log)
    {
    }
    PlayedTable(const PlayedTable&) = delete;
    PlayedTable& operator=(const PlayedTable&) = delete;

    template <class... Ts>
    void tell(const Ts&... parts)
    {
        if (_log != nullptr) {
            ((*_log << parts << " "), ...) << std::endl;
        }
    }

    /// A cell with a number of its own, which may be merged and may hold a pivot table.
    std::unique_ptr<DOM::Cell> makeCell(Numbers& numbers, ModelCell& modelCell);
    /// Another number for each row or column that is made.
    Number countLine() { return ++_lastLine; }

    DOM::Table table;
    TableModel model;
    const Pair limits;

private:
    std::ostream* _log;
    int _lastNumber = 0;
    Number _lastLine = 0;
};

inline std::unique_ptr<DOM::Cell> PlayedTable::makeCell(Numbers& numbers, ModelCell& modelCell)
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

} // namespace QN::Test
