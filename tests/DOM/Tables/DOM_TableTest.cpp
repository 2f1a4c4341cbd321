#include "DOM/Tables/DOM_Table.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "DOM/Tables/TableInspection.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::TableTest {
namespace {

using namespace QN::Test;
using Position = Table::IndexIncludingTombstones;

constexpr std::uint64_t Inserted = 5'000'000'000;

/// A table with cells in several chunks, tombstones, identifiers, styles and areas.
Table makeTable()
{
    Table table = makeGrid(5, 4, 6);
    table.setUUID(UUID("00000000-0000-0000-0000-000000000001"));
    table.setName("Sheet");
    table.insertRow({{}, {}, RowID(Inserted)}, RowIndex(2));
    table.insertColumn({{}, {}, ColumnID(Inserted)}, ColumnIndex(1));
    table.replaceRowWithTombstone(Position(3));
    table.replaceColWithTombstone(Position(0));
    table.setSharedStyle(makeStyle<RowStyle>('1'), RowIndex(1));
    table.setSharedStyle(makeStyle<ColumnStyle>('2'), ColumnIndex(1));
    table.setMergeProps(RowIndex(0), ColumnIndex(1), 1, 1);
    table.setPivotTable(RowIndex(3), ColumnIndex(2), makePivotTable(1, 1));
    return table;
}

void expectIsAsNew(const Table& table)
{
    Table fresh;
    fresh.setUUID(table.getUUID());
    EXPECT_EQ(toJson(table), toJson(fresh));
    EXPECT_EQ(table.getCell(RowIndex(0), ColumnIndex(0)), nullptr);
    EXPECT_EQ(table.getID(RowIndex(0)), RowID(1));
    EXPECT_EQ(table.getMaxRowIndex(), RowIndex(0));
    EXPECT_TRUE(table.getTableIterators().first == table.getTableIterators().second);
}

TEST(DOM_Table, HasATokenBesideTheIdentifiersOfItsRows)
{
    const Table table;
    EXPECT_EQ(table.getID(), static_cast<const Block&>(table).getID());
    EXPECT_EQ(Table(table).getID(), table.getID());
    EXPECT_NE(Table().getID(), table.getID());
    EXPECT_EQ(table.getID(RowIndex(0)), RowID(1));
    EXPECT_EQ(table.getID(ColumnIndex(1)), ColumnID(2));
}

TEST(DOM_Table, IsAsNewAndCanBeUsedAfterItWasMovedFrom)
{
    EXPECT_TRUE(std::is_nothrow_move_constructible_v<Table>);
    EXPECT_TRUE(std::is_nothrow_move_assignable_v<Table>);
    Table source = makeTable();
    const Table expected(source);
    const std::uint64_t token = source.getID();

    const Table moved(std::move(source));
    EXPECT_EQ(toJson(moved), toJson(expected));
    EXPECT_EQ(moved.getID(), token);
    EXPECT_EQ(source.getUUID(), expected.getUUID()); // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(source.getID(), token);
    expectIsAsNew(source);

    setNumber(source, 1, 2, 7.0);
    source.insertRow({{}, {}, RowID(Inserted)}, RowIndex(0));
    source.removeColumn(ColumnIndex(0));
    EXPECT_EQ(getChunkTexts(source), (ChunkTexts{"0: | | 3=7"}));
    EXPECT_EQ(getNumber(source, 2, 1), 7.0);
    EXPECT_EQ(toJson(moved), toJson(expected));
}

TEST(DOM_Table, IsAsNewAfterItWasAssignedFrom)
{
    Table source = makeTable();
    const Table expected(source);
    Table target = makeGrid(9, 9, 2);
    target = std::move(source);
    EXPECT_EQ(toJson(target), toJson(expected));
    EXPECT_EQ(target.getID(), expected.getID());
    expectIsAsNew(source); // NOLINT(bugprone-use-after-move)
    source = std::move(target);
    EXPECT_EQ(toJson(source), toJson(expected));
}

TEST(DOM_Table, KeepsEverythingWhenItIsAssignedToItself)
{
    Table table = makeTable();
    const std::string json = toJson(table);
    Table& itself = table;
    table = itself;
    EXPECT_EQ(toJson(table), json);
    table = std::move(itself);
    EXPECT_EQ(toJson(table), json);
}

TEST(DOM_Table, SharesNoStructureWithItsCopy)
{
    Table source = makeTable();
    const Table copy(source);
    const std::string json = toJson(copy);
    source.setMergeProps(RowIndex(0), ColumnIndex(1), 0, 0);
    source.removePivotTable(RowIndex(3), ColumnIndex(2));
    source.replaceRowWithTombstone(Position(0));
    source.replaceColWithTombstone(Position(2));
    source.removeRow(RowIndex(1));
    source.insertColumn({{}, {}, ColumnID(Inserted + 1)}, ColumnIndex(0));
    source.setSharedStyle(SharedStylePtr<RowStyle>(), RowIndex(0));
    source.resetRowColumnIDsToPredefined();
    EXPECT_EQ(toJson(copy), json);
    EXPECT_EQ(copy.getMergedRange(RowIndex(1), ColumnIndex(2)), makeRange(0, 2, 1, 3));
    EXPECT_EQ(copy.getPivotRoot(RowIndex(3), ColumnIndex(2)), makeIndex(3, 2));
    EXPECT_EQ(copy.getIndex(RowID(Inserted)), RowIndex(2));
}

TEST(DOM_Table, IsLeftAsItWasByALoadThatFails)
{
    const std::string valid = toJson(makeGrid(2, 2));
    const auto withReplaced = [&](const std::string& from, const std::string& to) {
        std::string json = valid;
        json.replace(json.find(from), from.size(), to);
        return json;
    };
    for (const std::string& json :
         {withReplaced(R"("startRowIndex":{"_value":0})", R"("startRowIndex":{"_value":1})"),
          withReplaced(R"("_rowsCount":2)", R"("_rowsCount":2000000)"),
          withReplaced(R"("_rowIDContainer")", R"("another")"),
          withReplaced(R"("_conditionalFormats")", R"("another")")}) {
        Table table = makeTable();
        const std::string before = toJson(table);
        const std::uint64_t token = table.getID();
        EXPECT_THROW(loadJson(json, table), cereal::Exception);
        EXPECT_EQ(toJson(table), before);
        EXPECT_EQ(table.getID(), token);
    }
    Table table = makeTable();
    const std::uint64_t token = table.getID();
    loadJson(valid, table);
    EXPECT_EQ(toJson(table), valid);
    EXPECT_NE(table.getID(), token);
}

TEST(DOM_Table, WritesTheSameBytesWhateverTheOrderOfItsStyles)
{
    Table upwards;
    upwards.setUUID(UUID());
    Table downwards(upwards);
    const auto rowStyle = makeStyle<RowStyle>('1');
    const auto columnStyle = makeStyle<ColumnStyle>('2');
    for (std::uint64_t place = 0; place < 300; ++place) {
        upwards.setSharedStyle(rowStyle, RowIndex(place));
        upwards.setSharedStyle(columnStyle, ColumnIndex(place));
        downwards.setSharedStyle(rowStyle, RowIndex(299 - place));
        downwards.setSharedStyle(columnStyle, ColumnIndex(299 - place));
    }
    EXPECT_EQ(toJson(upwards), toJson(downwards));
    expectRoundTrip(upwards);
}

} // namespace
} // namespace QN::DOM::TableTest
