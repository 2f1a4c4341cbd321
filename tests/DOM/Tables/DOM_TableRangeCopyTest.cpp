#include <gtest/gtest.h>

#include "DOM/Tables/TableInspection.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"

namespace QN::DOM::TableRangeCopyTest {
namespace {

using namespace QN::Test;

/// A copy of a range whose cells hold 1000 more than before, and -5 where no cell was stored.
std::unique_ptr<Table> copyRange(const Table& source, const TableRange& range)
{
    return Table::getRangeCustomCopy(source, range.getBeginRow(), range.getBeginColumn(), range.getEndRow(),
                                     range.getEndColumn(), [](const CellInfo& info) {
                                         Cell::Blocks blocks;
                                         const double number = getNumber(info.getCell());
                                         blocks.push_back(
                                             makeNumberBlock(number == -2.0 ? -5.0 : number + 1000.0));
                                         return blocks;
                                     });
}

TEST(DOM_TableRangeCopy, HasTheIdentityAndTheCellsOfItsSource)
{
    Table source = makeGrid(4, 4, 3);
    source.setUUID(UUID::generate());
    source.setName("Sheet");
    source.setSharedStyle(makeStyle<TableStyle>('1'));
    const auto copy = copyRange(source, makeRange(1, 3, 2, 4));
    EXPECT_EQ(copy->getUUID(), source.getUUID());
    EXPECT_EQ(copy->getName(), "Sheet");
    EXPECT_EQ(copy->getSharedStyle(), source.getSharedStyle());
    EXPECT_EQ(copy->getLiveRowsCount(), RowIndex(2));
    EXPECT_EQ(copy->getLiveColsCount(), ColumnIndex(2));
    EXPECT_EQ(getChunkTexts(*copy), (ChunkTexts{"0: 1=1012 2=1013", "1: 1=1022 2=1023"}));
}

TEST(DOM_TableRangeCopy, AsksForEveryPositionAndSkipsThoseWithoutCell)
{
    Table source;
    setNumber(source, 1, 1, 7.0);
    std::vector<CellIndex> asked;
    const auto copy = Table::getRangeCustomCopy(source, RowIndex(0), ColumnIndex(0), RowIndex(2),
                                                ColumnIndex(2), [&](const CellInfo& info) {
                                                    asked.push_back(info.getCellIndex());
                                                    return Cell::Blocks();
                                                });
    EXPECT_EQ(asked, (std::vector{makeIndex(0, 0), makeIndex(0, 1), makeIndex(1, 0), makeIndex(1, 1)}));
    EXPECT_EQ(copy->getCell(RowIndex(0), ColumnIndex(0)), nullptr);
    ASSERT_NE(copy->getCell(RowIndex(1), ColumnIndex(1)), nullptr);
    EXPECT_TRUE(copy->getCell(RowIndex(1), ColumnIndex(1))->getRawBlocks().empty());
}

TEST(DOM_TableRangeCopy, TakesStylesAndMergePropsOfItsCells)
{
    Table source = makeGrid(3, 3);
    source.getCell(RowIndex(1), ColumnIndex(1))->getSharedStyle() = makeStyle<CellStyle>('4');
    source.setMergeProps(RowIndex(1), ColumnIndex(1), 1, 0);
    const auto copy = copyRange(source, makeRange(1, 3, 1, 3));
    EXPECT_EQ(copy->getCell(RowIndex(0), ColumnIndex(0))->getSharedStyle(),
              source.getCell(RowIndex(1), ColumnIndex(1))->getSharedStyle());
    EXPECT_EQ(copy->getMergedRange(RowIndex(1), ColumnIndex(0)), makeRange(0, 2, 0, 1));
}

TEST(DOM_TableRangeCopy, IsAsLargeAsTheMergedRangesThatReachOutOfItNeed)
{
    Table source = makeGrid(5, 5);
    source.setMergeProps(RowIndex(1), ColumnIndex(1), 3, 2);
    const auto copy = copyRange(source, makeRange(0, 2, 0, 2));
    EXPECT_EQ(copy->getLiveRowsCount(), RowIndex(5));
    EXPECT_EQ(copy->getLiveColsCount(), ColumnIndex(4));
    EXPECT_EQ(copy->getMergedRange(RowIndex(4), ColumnIndex(3)), makeRange(1, 5, 1, 4));
    const auto inside = copyRange(source, makeRange(2, 4, 2, 4));
    EXPECT_EQ(inside->getLiveRowsCount(), RowIndex(2));
    EXPECT_TRUE(getMergedRanges(*inside).empty());
}

TEST(DOM_TableRangeCopy, MakesPlainCellsOfThoseInAPivotTable)
{
    Table source = makeGrid(2, 1);
    source.getCell(RowIndex(0), ColumnIndex(0))->getSharedStyle() = makeStyle<CellStyle>('4');
    source.setPivotTable(RowIndex(0), ColumnIndex(0), makePivotTable(2, 2));
    const auto copy = copyRange(source, makeRange(0, 2, 0, 2));
    EXPECT_EQ(getChunkTexts(*copy), (ChunkTexts{"0: 1=1000 2=-5 | 1=1010 2=-5"}));
    EXPECT_EQ(copy->getCell(RowIndex(0), ColumnIndex(0))->getSharedStyle(), nullptr);
    EXPECT_EQ(copy->getCell(RowIndex(0), ColumnIndex(0))->getPivotTable(), nullptr);
    EXPECT_FALSE(copy->isPivotTablesInRange(makeRange(0, 9, 0, 9)));
}

TEST(DOM_TableRangeCopy, TakesTheStylesOfItsRowsAndColumns)
{
    Table source = makeGrid(4, 4);
    source.setSharedStyle(makeStyle<RowStyle>('2'), RowIndex(2));
    source.setSharedStyle(makeStyle<ColumnStyle>('3'), ColumnIndex(1));
    source.setSharedStyle(makeStyle<ColumnStyle>('3'), ColumnIndex(3));
    const auto copy = copyRange(source, makeRange(1, 3, 1, 3));
    EXPECT_EQ(copy->getSharedStyle(RowIndex(1)), source.getSharedStyle(RowIndex(2)));
    EXPECT_EQ(copy->getSharedStyle(RowIndex(0)), nullptr);
    EXPECT_EQ(copy->getSharedStyle(ColumnIndex(0)), source.getSharedStyle(ColumnIndex(1)));
    EXPECT_EQ(copy->getSharedStyle(ColumnIndex(1)), nullptr);
    EXPECT_EQ(copy->getLiveColsCount(), ColumnIndex(2));
}

TEST(DOM_TableRangeCopyDeathTest, NeedsARange)
{
    EXPECT_DEATH(copyRange(Table(), makeRange(0, 0, 0, 1)), "_beginRow < _endRow");
    EXPECT_DEATH(Table::getRangeCustomCopy(Table(), RowIndex(0), ColumnIndex(1), RowIndex(1), ColumnIndex(1),
                                           [](const CellInfo&) { return Cell::Blocks(); }),
                 "_beginColumn < _endColumn");
}

} // namespace
} // namespace QN::DOM::TableRangeCopyTest
