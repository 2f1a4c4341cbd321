#pragma once

#include <cstdint>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "DOM/Tables/TableSamples.h"

/// Rows and columns outside a table.

namespace QN::Test {

/// An identifier that is inserted.
inline constexpr std::uint64_t Inserted = 5'000'000'000;

inline DOM::RowData makeRow(std::uint64_t id, const std::vector<std::pair<std::uint64_t, double>>& cells = {})
{
    DOM::RowData row;
    row.id = DOM::RowID(id);
    for (const auto& [column, number] : cells) {
        row.cells.emplace_back(ColumnIndex(column), makeNumberCell(number));
    }
    return row;
}

inline DOM::ColumnData makeColumn(std::uint64_t id,
                                  const std::vector<std::pair<std::uint64_t, double>>& cells = {})
{
    DOM::ColumnData column;
    column.id = DOM::ColumnID(id);
    for (const auto& [row, number] : cells) {
        column.cells.emplace_back(RowIndex(row), makeNumberCell(number));
    }
    return column;
}

/// The cells of a row or column in transit.
template <class Data>
std::string getText(const Data& data)
{
    std::ostringstream text;
    text << data.id.get() << ":";
    for (const auto& [index, cell] : data.cells) {
        text << " " << index.get() << "=" << getNumber(cell.get());
    }
    return text.str();
}

template <class Function>
std::string getExceptionText(Function function)
{
    try {
        function();
    } catch (const DOM::Table::BadRowColIDException& exception) {
        return exception.what();
    }
    return "<none>";
}

} // namespace QN::Test
