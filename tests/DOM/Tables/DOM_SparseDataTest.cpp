#include "DOM/Tables/DOM_SparseData.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"

namespace QN::DOM::SparseDataTest {
namespace {

using namespace QN::Test;

TEST(DOM_SparseData, NumbersTheCellsOfARowByColumnAndThoseOfAColumnByRow)
{
    EXPECT_TRUE(RowData::IsRow);
    EXPECT_TRUE((std::is_same_v<decltype(RowData::cells)::value_type::first_type, ColumnIndex>));
    EXPECT_TRUE((std::is_same_v<decltype(RowData::id), RowID>));
    EXPECT_FALSE(ColumnData::IsRow);
    EXPECT_TRUE((std::is_same_v<decltype(ColumnData::cells)::value_type::first_type, RowIndex>));
    EXPECT_TRUE((std::is_same_v<decltype(ColumnData::id), ColumnID>));
}

TEST(DOM_SparseData, IsEmptyByDefault)
{
    const RowData row;
    EXPECT_TRUE(row.cells.empty());
    EXPECT_EQ(row.style, nullptr);
    EXPECT_EQ(row.id, RowID(0));
}

TEST(DOM_SparseData, IsMovedWithItsCells)
{
    EXPECT_TRUE(std::is_nothrow_move_constructible_v<ColumnData>);
    ColumnData column;
    column.cells.emplace_back(RowIndex(4), makeNumberCell(7.0));
    column.style = makeStyle<ColumnStyle>('1');
    column.id = ColumnID(9);
    const Cell* const cell = column.cells.front().second.get();
    const auto style = column.style;
    const ColumnData moved(std::move(column));
    ASSERT_EQ(moved.cells.size(), 1U);
    EXPECT_EQ(moved.cells.front().first, RowIndex(4));
    EXPECT_EQ(moved.cells.front().second.get(), cell);
    EXPECT_EQ(moved.style, style);
    EXPECT_EQ(moved.id, ColumnID(9));
}

TEST(DOM_SparseData, GoesFromOneTableIntoAnother)
{
    Table source = makeGrid(3, 3);
    source.setSharedStyle(makeStyle<RowStyle>('1'), RowIndex(1));
    Table target = makeGrid(2, 2);
    RowData row = source.removeRow(RowIndex(1));
    row.id = target.generateID<RowID>();
    target.insertRow(std::move(row), RowIndex(2));
    EXPECT_EQ(getNumber(target, 2, 2), 12.0);
    EXPECT_EQ(target.getLiveColsCount(), ColumnIndex(3));
    EXPECT_NE(target.getSharedStyle(RowIndex(2)), nullptr);
}

} // namespace
} // namespace QN::DOM::SparseDataTest
