#include <gtest/gtest.h>

#include <functional>

#include "DOM/FormulaSyntaxTree/DOM_Bool.h"
#include "DOM/Tables/DamagedTables.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::TableEqualityTest {
namespace {

using namespace QN::Test;
using Position = Table::IndexIncludingTombstones;

Table makeTable()
{
    Table table = makeGrid(3, 3);
    table.ensureSize(RowIndex(6), ColumnIndex(6));
    return table;
}

void expectDiffers(const std::function<void(Table&)>& change)
{
    const Table table = makeTable();
    Table changed = makeTable();
    EXPECT_EQ(changed, table);
    change(changed);
    EXPECT_FALSE(changed.areEqualWithoutIDs(table));
    EXPECT_FALSE(table.areEqualWithoutIDs(changed));
    EXPECT_TRUE(changed != table);
}

void expectIsLeftOut(const std::function<void(Table&)>& change)
{
    Table changed = makeTable();
    change(changed);
    EXPECT_EQ(changed, makeTable());
}

TEST(DOM_TableEquality, SeesIdentityNameAndExtent)
{
    expectDiffers([](Table& table) { table.setUUID(UUID::generate()); });
    expectDiffers([](Table& table) { table.setName("x"); });
    expectDiffers([](Table& table) { table.ensureSize(RowIndex(7), ColumnIndex(0)); });
    expectDiffers([](Table& table) { table.ensureSize(RowIndex(0), ColumnIndex(7)); });
}

TEST(DOM_TableEquality, SeesTombstones)
{
    expectDiffers([](Table& table) {
        table.replaceRowWithTombstone(Position(4));
        table.ensureSize(RowIndex(6), ColumnIndex(0));
    });
    expectDiffers([](Table& table) {
        table.replaceColWithTombstone(Position(4));
        table.ensureSize(RowIndex(0), ColumnIndex(6));
    });
    expectDiffers([](Table& table) {
        table.getFrames().getTombstones().replaceWithTombstone(
            CollaborationUtils::IndexIncludingTombstones(0));
    });
}

TEST(DOM_TableEquality, SeesNamesStylesAndFrames)
{
    expectDiffers(
        [](Table& table) { table.getDefinedNames()["a"] = std::make_unique<FormulaSyntaxTree::Bool>(true); });
    expectDiffers([](Table& table) { table.setSharedStyle(makeStyle<TableStyle>('1')); });
    expectDiffers([](Table& table) { table.setSharedStyle(makeStyle<RowStyle>('1'), RowIndex(2)); });
    expectDiffers([](Table& table) { table.setSharedStyle(makeStyle<ColumnStyle>('1'), ColumnIndex(2)); });
    expectDiffers([](Table& table) { table.getFrames().getElements().push_back(std::make_unique<Frame>()); });
}

TEST(DOM_TableEquality, ComparesNamesStylesAndFramesByValue)
{
    const auto dress = [](Table& table) {
        table.getDefinedNames()["a"] = std::make_unique<FormulaSyntaxTree::Bool>(true);
        table.setSharedStyle(makeStyle<TableStyle>('1'));
        table.setSharedStyle(makeStyle<RowStyle>('1'), RowIndex(2));
        table.setSharedStyle(makeStyle<ColumnStyle>('1'), ColumnIndex(2));
        table.getFrames().getElements().push_back(std::make_unique<Frame>());
    };
    Table one = makeTable();
    Table other = makeTable();
    dress(one);
    dress(other);
    EXPECT_NE(one.getSharedStyle(), other.getSharedStyle());
    EXPECT_EQ(one, other);
    other.setSharedStyle(makeStyle<RowStyle>('2'), RowIndex(2));
    EXPECT_FALSE(one.areStylesEqual(other));
    EXPECT_NE(one, other);
}

TEST(DOM_TableEquality, SeesCellsAndPivotAreas)
{
    expectDiffers([](Table& table) { setNumber(table, 1, 1, 99.0); });
    expectDiffers([](Table& table) { setNumber(table, 4, 4, 99.0); });
    expectDiffers([](Table& table) { table.removeCell(RowIndex(2), ColumnIndex(2)); });
    expectDiffers([](Table& table) { table.setMergeProps(RowIndex(0), ColumnIndex(0), 1, 0); });
    expectDiffers([](Table& table) {
        table.setPivotTable(RowIndex(4), ColumnIndex(4), makePivotTable(1, 1));
        table.getCell(RowIndex(4), ColumnIndex(4))->setPivotTable(nullptr);
    });
}

TEST(DOM_TableEquality, LeavesOutWhatIsNoContent)
{
    expectIsLeftOut([](Table& table) { table.setFilterInfo(TableFilterInfo(makeRange(0, 2, 0, 1))); });
    expectIsLeftOut([](Table& table) {
        table.setHeaderRowsCols(RowIndex(0), ColumnIndex(0), RowIndex(0), ColumnIndex(0));
    });
    expectIsLeftOut([](Table& table) { table.getTableSettings().setShowZeroValue(false); });
    expectIsLeftOut([](Table& table) {
        table.getConditionalFormats().getElements().push_back(std::make_unique<ConditionalFormat>());
    });
}

TEST(DOM_TableEquality, LeavesOutTheMergedRangesAsSuch)
{
    Table one = makeTable();
    Table other = makeTable();
    one.setMergeProps(RowIndex(0), ColumnIndex(0), 1, 0);
    other.getCell(RowIndex(0), ColumnIndex(0))->setMergeProps(CellMergeProps(1, 0));
    EXPECT_NE(one.getMergedRange(RowIndex(0), ColumnIndex(0)),
              other.getMergedRange(RowIndex(0), ColumnIndex(0)));
    EXPECT_EQ(one, other);
}

TEST(DOM_TableEquality, LeavesOutTheChunks)
{
    EXPECT_EQ(makeGrid(6, 4, 5), makeGrid(6, 4, 20000));
}

TEST(DOM_TableEquality, TakesAStoredEmptyCellForNoCell)
{
    expectIsLeftOut([](Table& table) { table.getOrCreateCell(RowIndex(1), ColumnIndex(4)); });
    expectIsLeftOut([](Table& table) { table.getOrCreateCell(RowIndex(5), ColumnIndex(5)); });
    Table one;
    Table other;
    other.setUUID(one.getUUID());
    other.getOrCreateCell(RowIndex(2), ColumnIndex(2));
    one.ensureSize(RowIndex(3), ColumnIndex(3));
    EXPECT_TRUE(one.areCellsEqual(other));
    EXPECT_EQ(one, other);
}

TEST(DOM_TableEquality, TakesACellWithTombstonesAloneForACell)
{
    expectDiffers([](Table& table) {
        table.getOrCreateCell(RowIndex(1), ColumnIndex(4))
            .getTextWithTombstones()
            .getTombstones()
            .replaceWithTombstone(CollaborationUtils::IndexIncludingTombstones(0));
    });
}

TEST(DOM_TableEquality, SeesIdentifiersOnlyWhenItIsWhole)
{
    Table one(RowIndex(4), ColumnIndex(4));
    Table other(RowIndex(3), ColumnIndex(4));
    other.setUUID(one.getUUID());
    other.insertRow({{}, {}, RowID(5'000'000'000)}, RowIndex(1));
    EXPECT_TRUE(one.areEqualWithoutIDs(other));
    EXPECT_FALSE(one.areRowColIDsEqual(other));
    EXPECT_NE(one, other);

    Table third(RowIndex(4), ColumnIndex(3));
    third.setUUID(one.getUUID());
    third.insertColumn({{}, {}, ColumnID(5'000'000'000)}, ColumnIndex(1));
    EXPECT_TRUE(one.areEqualWithoutIDs(third));
    EXPECT_FALSE(one.areRowColIDsEqual(third));
}

TEST(DOM_TableEquality, SeesTheIdentifiersOfLiveRowsAlone)
{
    Table one(RowIndex(4), ColumnIndex(4));
    Table other(one);
    other.insertRow({{}, {}, RowID(5'000'000'000)}, RowIndex(4));
    other.removeRow(RowIndex(4));
    EXPECT_NE(one.getRowIDContainer(), other.getRowIDContainer());
    EXPECT_TRUE(one.areRowColIDsEqual(other));
    EXPECT_EQ(one, other);
}

TEST(DOM_TableEquality, SeesTheStylesOfPositionsWhateverTheirIdentifiers)
{
    Table one(RowIndex(4), ColumnIndex(4));
    one.setSharedStyle(makeStyle<RowStyle>('1'), RowIndex(1));
    Table other(RowIndex(3), ColumnIndex(4));
    other.setUUID(one.getUUID());
    other.insertRow({{}, makeStyle<RowStyle>('1'), RowID(5'000'000'000)}, RowIndex(1));
    EXPECT_TRUE(one.areStylesEqual(other));
    EXPECT_TRUE(one.areEqualWithoutIDs(other));
}

// Tables as only a file can make them

TEST(DOM_TableEquality, LeavesOutRowsBehindTheLiveOnes)
{
    Table one = makeGrid(4, 1);
    Table other(one);
    setNumber(other, 2, 0, 99.0);
    EXPECT_NE(one, other);
    setLiveRowsCount(one, 2);
    setLiveRowsCount(other, 2);
    EXPECT_EQ(one, other);
    setNumber(other, 1, 0, 99.0);
    setLiveRowsCount(other, 2);
    EXPECT_NE(one, other);
}

TEST(DOM_TableEquality, EndsWhereTheFirstStoredRowBehindTheLiveOnesCannotBeTold)
{
    Table table = makeDamagedTable(1, {0, 1, 0, 1}, [] { return makeNumberCell(1.0); });
    setLiveRowsCount(table, 2);
    EXPECT_EQ(table, Table(table));
    EXPECT_EQ(fromJson<Table>(toJson(table)), table);
}

TEST(DOM_TableEquality, ComparesCellsThatRowsShareOnce)
{
    // Of 2,000,000,000 cells if each row were walked over.
    const Table table = makeDamagedTable(20000, makeSharedOffsets(20000, 200000));
    EXPECT_EQ(table, Table(table));
}

TEST(DOM_TableEquality, SeesWhichRowsShareCells)
{
    const auto makeShared = [](std::vector<std::uint64_t> offsets, double last) {
        double number = last - 2.0;
        Table table = makeDamagedTable(2, std::move(offsets), [&] { return makeNumberCell(number += 1.0); });
        table.setUUID(UUID());
        return table;
    };
    const Table table = makeShared({0, 2, 0}, 5.0);
    EXPECT_EQ(table, makeShared({0, 2, 0}, 5.0));
    EXPECT_NE(table, makeShared({0, 2, 0}, 6.0));
    for (const Table& other : {makeShared({0, 2, 2}, 5.0), makeShared({0, 2, 1}, 5.0)}) {
        EXPECT_NE(table, other);
        EXPECT_NE(other, table);
    }
}

// validate

TEST(DOM_TableValidate, PassesATableWithARowAndAColumn)
{
    Table(RowIndex(1), ColumnIndex(1)).validate();
    Table table = makeTable();
    table.setMergeProps(RowIndex(0), ColumnIndex(0), 5, 5);
    table.setPivotTable(RowIndex(0), ColumnIndex(0), makePivotTable(6, 6));
    table.insertRow({{}, {}, RowID(5'000'000'000)}, RowIndex(4));
    table.removeColumn(ColumnIndex(5));
    table.ensureSize(RowIndex(0), ColumnIndex(6));
    table.validate();
}

TEST(DOM_TableValidateDeathTest, FailsForATableWithoutRowsOrColumns)
{
    EXPECT_DEATH(Table().validate(),
                 R"(getLiveRowsCount\(\)\.get\(\) > mergedCellsBounds\.rowIndex\.get\(\))");
    EXPECT_DEATH(Table(RowIndex(1), ColumnIndex(0)).validate(),
                 R"(getLiveColsCount\(\)\.get\(\) > mergedCellsBounds\.colIndex\.get\(\))");
}

TEST(DOM_TableValidateDeathTest, FailsForRangesOutsideTheLiveRowsAndColumns)
{
    Table rows = makeTable();
    rows.setMergeProps(RowIndex(0), ColumnIndex(0), 5, 0);
    rows.removeRow(RowIndex(5));
    EXPECT_DEATH(rows.validate(), R"(getLiveRowsCount\(\)\.get\(\) > mergedCellsBounds\.rowIndex\.get\(\))");
    Table columns = makeTable();
    columns.setMergeProps(RowIndex(0), ColumnIndex(0), 0, 5);
    columns.removeColumn(ColumnIndex(5));
    EXPECT_DEATH(columns.validate(),
                 R"(getLiveColsCount\(\)\.get\(\) > mergedCellsBounds\.colIndex\.get\(\))");
    Table pivot = makeTable();
    pivot.setPivotTable(RowIndex(0), ColumnIndex(0), makePivotTable(1, 7));
    EXPECT_DEATH(pivot.validate(), R"(getLiveRowsCount\(\)\.get\(\) > pivotTablesBounds\.rowIndex\.get\(\))");
    pivot.setPivotTable(RowIndex(0), ColumnIndex(0), makePivotTable(7, 1));
    EXPECT_DEATH(pivot.validate(), R"(getLiveColsCount\(\)\.get\(\) > pivotTablesBounds\.colIndex\.get\(\))");
}

} // namespace
} // namespace QN::DOM::TableEqualityTest
