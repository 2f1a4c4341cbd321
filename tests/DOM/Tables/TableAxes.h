#pragma once

#include <type_traits>
#include <utility>

#include "DOM/Tables/DOM_Table.h"

/// The types and operations of rows and of columns under common names, for tests to which both are alike.

namespace QN::Test {

template <class StyleOfAxis>
struct AxisTypes {
    using Style = StyleOfAxis;
    using Data = DOM::SparseData<Style>;
    using ID = typename Data::ID;
    using Index = std::conditional_t<Data::IsRow, RowIndex, ColumnIndex>;
    using Position = DOM::Table::IndexIncludingTombstones;
};

/// `insert` and `remove` are for a table and for its model.
struct RowAxis : AxisTypes<DOM::RowStyle> {
    static constexpr const char* Name = "row";

    static auto& get(auto& model) { return model.rows; }
    static void insert(auto& table, auto line, auto at) { table.insertRow(std::move(line), at); }
    static auto remove(auto& table, auto at) { return table.removeRow(at); }
    static void restore(DOM::Table& table, Data data, Position at) { table.restoreRow(std::move(data), at); }
    static Data replace(DOM::Table& table, Position at) { return table.replaceRowWithTombstone(at); }
    static void clear(DOM::Table& table) { table.clearRowTombstones(); }
};

struct ColumnAxis : AxisTypes<DOM::ColumnStyle> {
    static constexpr const char* Name = "column";

    static auto& get(auto& model) { return model.columns; }
    static void insert(auto& table, auto line, auto at) { table.insertColumn(std::move(line), at); }
    static auto remove(auto& table, auto at) { return table.removeColumn(at); }
    static void restore(DOM::Table& table, Data data, Position at)
    {
        table.restoreColumn(std::move(data), at);
    }
    static Data replace(DOM::Table& table, Position at) { return table.replaceColWithTombstone(at); }
    static void clear(DOM::Table& table) { table.clearColumnTombstones(); }
};

} // namespace QN::Test
