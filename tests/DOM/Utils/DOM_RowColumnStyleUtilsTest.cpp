#include "DOM/Utils/DOM_RowColumnStyleUtils.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <sstream>
#include <string>
#include <utility>

#include "DOM/Tables/Properties/DOM_ColumnProps.h"
#include "DOM/Tables/Properties/DOM_RowProps.h"
#include "DOM/Tables/TableAxes.h"
#include "DOM/Tables/TableInspection.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::RowColumnStyleUtilsTest {

namespace {

using namespace QN::Test;
using Utils::getSparseDataWithProps;

RowData getRow(const Table& table, std::uint64_t index)
{
    return getSparseDataWithProps(table, RowIndex(index));
}

ColumnData getColumn(const Table& table, std::uint64_t index)
{
    return getSparseDataWithProps(table, ColumnIndex(index));
}

/// Of each cell the index and the number, as in "0=10 2=12".
template <class Style>
std::string getCells(const SparseData<Style>& data)
{
    std::ostringstream text;
    for (const auto& [index, cell] : data.cells) {
        text << (text.str().empty() ? "" : " ") << index.get() << '=' << getNumber(cell.get());
    }
    return text.str();
}

template <class Style, class Props>
SharedStylePtr<Style> makeHidingStyle(BoolOpt isHidden)
{
    auto props = std::make_shared<Props>();
    props->setHidden(isHidden);
    Style style;
    style.setProps(std::move(props));
    return SharedObjectFactory().create(std::move(style));
}

Cell& getOrCreateCell(Table& table, std::uint64_t row, std::uint64_t column)
{
    return table.getOrCreateCell(RowIndex(row), ColumnIndex(column));
}

/// What is alike for a row and for a column.
template <class Axis>
class GetSparseDataWithPropsOfAxisTest : public testing::Test {
};

using Axes = testing::Types<RowAxis, ColumnAxis>;
TYPED_TEST_SUITE(GetSparseDataWithPropsOfAxisTest, Axes);

TYPED_TEST(GetSparseDataWithPropsOfAxisTest, ARowOrColumnIsCopiedWithItsIdentifierItsStyleAndItsCells)
{
    const typename TypeParam::Index index(1);
    Table table = makeGrid(3, 3);
    const auto style = makeStyle<typename TypeParam::Style>('5');
    table.setSharedStyle(style, index);
    const std::string before = toJson(table);
    const typename TypeParam::Data data = getSparseDataWithProps(table, index);
    EXPECT_EQ(data.id, table.getID(index));
    EXPECT_EQ(data.style, style);
    EXPECT_EQ(getCells(data), TypeParam::Data::IsRow ? "0=10 1=11 2=12" : "0=1 1=11 2=21");
    EXPECT_EQ(toJson(table), before);
}

TYPED_TEST(GetSparseDataWithPropsOfAxisTest, ARemovedRowOrColumnComesBackFromItsCopy)
{
    const typename TypeParam::Index index(1);
    Table table = makeGrid(3, 3);
    table.setSharedStyle(makeStyle<typename TypeParam::Style>('5'), index);
    const Table before = table;
    typename TypeParam::Data copy = getSparseDataWithProps(table, index);
    TypeParam::remove(table, index);
    TypeParam::insert(table, std::move(copy), index);
    EXPECT_TRUE(table == before);
}

TEST(GetSparseDataWithPropsTest, CellsAreCopiedDeeply)
{
    Table table = makeGrid(2, 2);
    const RowData row = getRow(table, 0);
    const Cell* const source = table.getCell(RowIndex(0), ColumnIndex(1));
    EXPECT_NE(row.cells[1].second.get(), source);
    EXPECT_NE(row.cells[1].second->getRawBlocks()[0].get(), &source->getRawBlocks()[0]);
    EXPECT_TRUE(*row.cells[1].second == *source);
    setNumber(table, 0, 1, 99.0);
    EXPECT_EQ(getCells(row), "0=0 1=1");
}

TEST(GetSparseDataWithPropsTest, OnlyTheRowOrColumnItselfIsCopied)
{
    Table table;
    setNumber(table, 0, 5, 1.0);
    setNumber(table, 7, 2, 2.0);
    setNumber(table, 7, 9, 3.0);
    setNumber(table, 8, 2, 4.0);
    EXPECT_EQ(getCells(getRow(table, 7)), "2=2 9=3");
    EXPECT_EQ(getCells(getRow(table, 1)), "");
    EXPECT_EQ(getCells(getColumn(table, 2)), "7=2 8=4");
    EXPECT_EQ(getCells(getColumn(table, 3)), "");
}

TEST(GetSparseDataWithPropsTest, AColumnIsCopiedAcrossChunks)
{
    const Table table = makeGrid(9, 2, 4);
    ASSERT_GT(getChunks(table).size(), 2U);
    EXPECT_EQ(getCells(getColumn(table, 1)), "0=1 1=11 2=21 3=31 4=41 5=51 6=61 7=71 8=81");
}

TEST(GetSparseDataWithPropsTest, IndicesAndIdentifiersAreThoseOfTheLiveRowsAndColumns)
{
    Table table = makeGrid(3, 3);
    table.replaceRowWithTombstone(Table::IndexIncludingTombstones(0));
    RowData inserted;
    inserted.id = RowID(5000000);
    table.insertRow(std::move(inserted), RowIndex(0));
    table.removeColumn(ColumnIndex(0));
    EXPECT_EQ(getRow(table, 0).id, RowID(5000000));
    EXPECT_EQ(getCells(getRow(table, 0)), "");
    EXPECT_EQ(getRow(table, 1).id, RowID(2));
    EXPECT_EQ(getCells(getRow(table, 1)), "0=11 1=12");
    EXPECT_EQ(getColumn(table, 0).id, ColumnID(2));
    EXPECT_EQ(getCells(getColumn(table, 0)), "1=11 2=21");
}

TEST(GetSparseDataWithPropsTest, WithoutAStyleTheHandleIsNull)
{
    const Table table = makeGrid(1, 1);
    EXPECT_FALSE(getRow(table, 0).style);
    EXPECT_FALSE(getColumn(table, 0).style);
}

TEST(GetSparseDataWithPropsTest, AStyleThatHidesIsLeftOut)
{
    Table table = makeGrid(1, 1);
    table.setSharedStyle(makeHidingStyle<RowStyle, RowProps>(true), RowIndex(0));
    table.setSharedStyle(makeHidingStyle<ColumnStyle, ColumnProps>(true), ColumnIndex(0));
    EXPECT_FALSE(getRow(table, 0).style);
    EXPECT_FALSE(getColumn(table, 0).style);
    EXPECT_EQ(getCells(getRow(table, 0)), "0=0");
    EXPECT_TRUE(table.getSharedStyle(RowIndex(0)));
}

TEST(GetSparseDataWithPropsTest, AStyleThatShowsOrDoesNotSayIsCopied)
{
    for (const BoolOpt isHidden : {BoolOpt(), BoolOpt(false)}) {
        Table table = makeGrid(1, 1);
        table.setSharedStyle(makeHidingStyle<RowStyle, RowProps>(isHidden), RowIndex(0));
        table.setSharedStyle(makeHidingStyle<ColumnStyle, ColumnProps>(isHidden), ColumnIndex(0));
        EXPECT_TRUE(getRow(table, 0).style && getRow(table, 0).style == table.getSharedStyle(RowIndex(0)));
        EXPECT_TRUE(getColumn(table, 0).style &&
                    getColumn(table, 0).style == table.getSharedStyle(ColumnIndex(0)));
    }
}

TEST(GetSparseDataWithPropsTest, EmptyCellsAreLeftOut)
{
    Table table = makeGrid(1, 1);
    getOrCreateCell(table, 0, 1);
    setNumber(table, 0, 2, 5.0);
    EXPECT_EQ(getCells(getRow(table, 0)), "0=0 2=5");
    EXPECT_EQ(getCells(getColumn(table, 1)), "");
}

TEST(GetSparseDataWithPropsTest, ACellWithAStyleMergePropertiesOrTombstonesIsNotEmpty)
{
    Table table(RowIndex(1), ColumnIndex(4));
    getOrCreateCell(table, 0, 0).getSharedStyle() = makeStyle<CellStyle>('5');
    table.setMergeProps(RowIndex(0), ColumnIndex(1), 0, 1);
    getOrCreateCell(table, 0, 3)
        .getTextWithTombstones()
        .getTombstones()
        .replaceWithTombstone(Table::IndexIncludingTombstones(0));
    const RowData row = getRow(table, 0);
    EXPECT_EQ(getCells(row), "0=-1 1=-1 3=-1");
    EXPECT_EQ(row.cells[0].second->getStyle().getParentUUID(), UUID("00000000-0000-0000-0000-000000000005"));
    EXPECT_EQ(row.cells[1].second->getMergeProps().getCapturedColsCount(), 1U);
}

TEST(GetSparseDataWithPropsTest, APivotTableAloneDoesNotCount)
{
    Table table(RowIndex(4), ColumnIndex(4));
    table.setPivotTable(RowIndex(0), ColumnIndex(0), makePivotTable(2, 2));
    EXPECT_EQ(getCells(getRow(table, 0)), "");
    setNumber(table, 0, 0, 5.0);
    const RowData row = getRow(table, 0);
    ASSERT_EQ(getCells(row), "0=5");
    ASSERT_NE(row.cells[0].second->getPivotTable(), nullptr);
    EXPECT_NE(row.cells[0].second->getPivotTable(),
              table.getCell(RowIndex(0), ColumnIndex(0))->getPivotTable());
}

TEST(GetSparseDataWithPropsTest, NullCellsOfAFileAreLeftOut)
{
    const Table table = makeGrid(1, 3);
    const_cast<TableChunk&>(getChunks(table)[0]).data[1].cell = nullptr;
    EXPECT_EQ(getCells(getRow(table, 0)), "0=0 2=2");
    EXPECT_EQ(getCells(getColumn(table, 1)), "");
}

TEST(GetSparseDataWithPropsTest, ARowOrColumnBehindTheLastHasNoCells)
{
    const Table table = makeGrid(2, 2);
    EXPECT_EQ(getRow(table, 2).id, RowID(3));
    EXPECT_EQ(getCells(getRow(table, 2)), "");
    EXPECT_EQ(getColumn(table, MaxColumns - 1).id, ColumnID(MaxColumns));
    EXPECT_EQ(getCells(getColumn(table, MaxColumns - 1)), "");
}

TEST(GetSparseDataWithPropsDeathTest, ATableWithoutColumnsHasNoRowToCopy)
{
    const char* const message = "Utils/Public/TableIndices/TableRange:230: _beginColumn < _endColumn\n";
    EXPECT_DEATH(static_cast<void>(getRow(Table(), 0)), message);
    EXPECT_DEATH(static_cast<void>(getRow(Table(RowIndex(3), ColumnIndex(0)), 1)), message);
}

TEST(GetSparseDataWithPropsDeathTest, ATableWithoutRowsHasNoColumnToCopy)
{
    const char* const message = "Utils/Public/TableIndices/TableRange:229: _beginRow < _endRow\n";
    EXPECT_DEATH(static_cast<void>(getColumn(Table(), 0)), message);
    EXPECT_DEATH(static_cast<void>(getColumn(Table(RowIndex(0), ColumnIndex(3)), 1)), message);
}

TEST(GetSparseDataWithPropsDeathTest, TheLargestIndexHasNoneBehindIt)
{
    EXPECT_DEATH(static_cast<void>(getRow(makeGrid(1, 1), std::numeric_limits<std::uint64_t>::max())),
                 "Utils/Public/TableIndices/TableRange:229: _beginRow < _endRow\n");
}

} // namespace

} // namespace QN::DOM::RowColumnStyleUtilsTest
