#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "DOM/DOM_FieldBlock.h"
#include "DOM/DOM_Paragraph.h"
#include "DOM/DOM_TextRun.h"
#include "DOM/Properties/DOM_SharedObjectFactory.h"
#include "DOM/Tables/DOM_PivotTable.h"
#include "DOM/Tables/DOM_Table.h"

/// Small tables and what stands in them.

namespace QN::Test {

inline CellIndex makeIndex(std::uint64_t row, std::uint64_t column)
{
    return {RowIndex(row), ColumnIndex(column)};
}

inline TableRange makeRange(std::uint64_t beginRow, std::uint64_t endRow, std::uint64_t beginColumn,
                            std::uint64_t endColumn)
{
    return {RowIndex(beginRow), RowIndex(endRow), ColumnIndex(beginColumn), ColumnIndex(endColumn)};
}

template <class Content>
std::unique_ptr<DOM::FieldBlock> makeFieldBlock(Content content)
{
    auto block = std::make_unique<DOM::FieldBlock>();
    block->getFieldInfo() = std::move(content);
    return block;
}

inline std::unique_ptr<DOM::FieldBlock> makeNumberBlock(double number)
{
    return makeFieldBlock(DOM::BlockValue<FloatNumber>(FloatNumber(number)));
}

inline std::unique_ptr<DOM::Paragraph> makeTextBlock(const std::string& text)
{
    auto paragraph = std::make_unique<DOM::Paragraph>();
    paragraph->getRuns().push_back(std::make_unique<DOM::TextRun>(text));
    return paragraph;
}

inline std::unique_ptr<DOM::Cell> makeNumberCell(double number)
{
    auto cell = std::make_unique<DOM::Cell>();
    cell->getRawBlocks().push_back(makeNumberBlock(number));
    return cell;
}

inline void setNumber(DOM::Table& table, std::uint64_t row, std::uint64_t column, double number)
{
    DOM::Cell& cell = table.getOrCreateCell(RowIndex(row), ColumnIndex(column));
    cell.getRawBlocks().clear();
    cell.getRawBlocks().push_back(makeNumberBlock(number));
}

/// The number of a cell; -1 for a cell without one, -2 where no cell is stored.
inline double getNumber(const DOM::Cell* cell)
{
    if (cell == nullptr) {
        return -2.0;
    }
    const auto* const number = cell->getNumberValue();
    return number != nullptr ? number->get().get() : -1.0;
}

inline double getNumber(const DOM::Table& table, std::uint64_t row, std::uint64_t column)
{
    return getNumber(table.getCell(RowIndex(row), ColumnIndex(column)));
}

/// Each cell holds 10 times its row plus its column.
inline DOM::Table makeGrid(std::uint64_t rows, std::uint64_t columns, std::uint64_t maxChunkSize = 20000)
{
    DOM::Table table(maxChunkSize);
    table.setUUID(UUID());
    for (std::uint64_t row = 0; row < rows; ++row) {
        for (std::uint64_t column = 0; column < columns; ++column) {
            setNumber(table, row, column, static_cast<double>(10 * row + column));
        }
    }
    return table;
}

inline std::unique_ptr<DOM::PivotTable> makePivotTable(unsigned int columns, unsigned int rows)
{
    auto pivotTable = std::make_unique<DOM::PivotTable>();
    pivotTable->setSize({columns, rows});
    return pivotTable;
}

/// A handle of its own to a style with a parent of that last digit.
template <class Style>
DOM::SharedStylePtr<Style> makeStyle(char digit)
{
    std::string parent = "00000000-0000-0000-0000-000000000000";
    parent.back() = digit;
    Style style;
    style.setParentUUID(UUID(parent));
    return DOM::SharedObjectFactory().create(std::move(style));
}

} // namespace QN::Test
