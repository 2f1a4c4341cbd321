#pragma once

#include <string>
#include <utility>

#include "DOM/Tables/TableModel.h"
#include "DOM/Tables/TableSamples.h"

/// What `TablePlayer` is made of: random numbers, and the operations of rows and columns under common names.

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

struct RowAxis {
    using Data = DOM::RowData;
    using Index = RowIndex;
    using ID = DOM::RowID;
    using Style = DOM::RowStyle;
    static constexpr const char* Name = "row";

    static ModelAxis& get(TableModel& model) { return model.rows; }
    static const ModelAxis& getOther(const TableModel& model) { return model.columns; }
    static void insert(TableModel& model, const ModelLine& line, Number at) { model.insertRow(line, at); }
    static ModelLine remove(TableModel& model, Number at) { return model.removeRow(at); }

    template <class At>
    static void insert(DOM::Table& table, Data data, At at)
    {
        table.insertRow(std::move(data), at);
    }
    static void restore(DOM::Table& table, Data data, DOM::Table::IndexIncludingTombstones at)
    {
        table.restoreRow(std::move(data), at);
    }
    template <class At>
    static Data remove(DOM::Table& table, At at)
    {
        return table.removeRow(at);
    }
    static Data replace(DOM::Table& table, DOM::Table::IndexIncludingTombstones at)
    {
        return table.replaceRowWithTombstone(at);
    }
    static void clear(DOM::Table& table) { table.clearRowTombstones(); }
};

struct ColumnAxis {
    using Data = DOM::ColumnData;
    using Index = ColumnIndex;
    using ID = DOM::ColumnID;
    using Style = DOM::ColumnStyle;
    static constexpr const char* Name = "column";

    static ModelAxis& get(TableModel& model) { return model.columns; }
    static const ModelAxis& getOther(const TableModel& model) { return model.rows; }
    static void insert(TableModel& model, const ModelLine& line, Number at) { model.insertColumn(line, at); }
    static ModelLine remove(TableModel& model, Number at) { return model.removeColumn(at); }

    template <class At>
    static void insert(DOM::Table& table, Data data, At at)
    {
        table.insertColumn(std::move(data), at);
    }
    static void restore(DOM::Table& table, Data data, DOM::Table::IndexIncludingTombstones at)
    {
        table.restoreColumn(std::move(data), at);
    }
    template <class At>
    static Data remove(DOM::Table& table, At at)
    {
        return table.removeColumn(at);
    }
    static Data replace(DOM::Table& table, DOM::Table::IndexIncludingTombstones at)
    {
        return table.replaceColWithTombstone(at);
    }
    static void clear(DOM::Table& table) { table.clearColumnTombstones(); }
};

} // namespace QN::Test
