#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "DOM/Tables/DOM_TableRangeUtils.h"
#include "DOM/Tables/TableInspection.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"
#include "Support/RoundTrip.h"

/// Rows and columns that leave tombstones: at the ends of an axis, all of them, and among merged ranges and pivot tables.

namespace QN::DOM::TableTombstonesTest {
namespace {

using namespace QN::Test;
using Position = Table::IndexIncludingTombstones;

constexpr std::uint64_t Inserted = 5'000'000'000;

/// The two axes under the same names, so that each test looks at both.
struct Rows {
    using Index = RowIndex;
    using ID = RowID;
    static RowData replace(Table& table, std::uint64_t position)
    {
        return table.replaceRowWithTombstone(Position(position));
    }
    static void restore(Table& table, RowData data, std::uint64_t position)
    {
        table.restoreRow(std::move(data), Position(position));
    }
    static void insert(Table& table, std::uint64_t id, std::uint64_t position)
    {
        table.insertRow({{}, {}, RowID(id)}, Position(position));
    }
    static RowData remove(Table& table, std::uint64_t position)
    {
        return table.removeRow(Position(position));
    }
    static void clear(Table& table) { table.clearRowTombstones(); }
    static std::uint64_t countLive(const Table& table) { return table.getLiveRowsCount().get(); }
    static std::uint64_t countAll(const Table& table) { return table.getAllRowsCount().get(); }
    static boost::optional<RowIndex> convert(const Table& table, std::uint64_t position)
    {
        return table.convertRowIndex(Position(position));
    }
    static boost::optional<RowIndex> resolve(const Table& table, std::uint64_t id, bool asEnd)
    {
        return table.resolveRowIndex(RowID(id), asEnd);
    }
};

struct Columns {
    using Index = ColumnIndex;
    using ID = ColumnID;
    static ColumnData replace(Table& table, std::uint64_t position)
    {
        return table.replaceColWithTombstone(Position(position));
    }
    static void restore(Table& table, ColumnData data, std::uint64_t position)
    {
        table.restoreColumn(std::move(data), Position(position));
    }
    static void insert(Table& table, std::uint64_t id, std::uint64_t position)
    {
        table.insertColumn({{}, {}, ColumnID(id)}, Position(position));
    }
    static ColumnData remove(Table& table, std::uint64_t position)
    {
        return table.removeColumn(Position(position));
    }
    static void clear(Table& table) { table.clearColumnTombstones(); }
    static std::uint64_t countLive(const Table& table) { return table.getLiveColsCount().get(); }
    static std::uint64_t countAll(const Table& table) { return table.getAllColsCount().get(); }
    static boost::optional<ColumnIndex> convert(const Table& table, std::uint64_t position)
    {
        return table.convertColIndex(Position(position));
    }
    static boost::optional<ColumnIndex> resolve(const Table& table, std::uint64_t id, bool asEnd)
    {
        return table.resolveColIndex(ColumnID(id), asEnd);
    }
};

template <class Axis>
class DOM_TableTombstones : public testing::Test {
protected:
    using Index = typename Axis::Index;
    using ID = typename Axis::ID;

    /// The identifiers of the live rows or columns.
    static std::vector<std::uint64_t> getIDs(const Table& table)
    {
        std::vector<std::uint64_t> ids;
        for (std::uint64_t index = 0; index < Axis::countLive(table); ++index) {
            ids.push_back(table.getID(Index(index)).get());
        }
        return ids;
    }
};

using IDs = std::vector<std::uint64_t>;
using Axes = testing::Types<Rows, Columns>;
TYPED_TEST_SUITE(DOM_TableTombstones, Axes);

TYPED_TEST(DOM_TableTombstones, StandAtBothEnds)
{
    Table table = makeGrid(4, 4, 5);
    TypeParam::replace(table, 0);
    TypeParam::replace(table, 3);
    EXPECT_EQ(this->getIDs(table), (IDs{2, 3}));
    EXPECT_EQ(TypeParam::countAll(table), 4U);
    EXPECT_EQ(TypeParam::convert(table, 0), boost::none);
    EXPECT_EQ(TypeParam::convert(table, 1), typename TypeParam::Index(0));
    EXPECT_EQ(TypeParam::convert(table, 3), boost::none);
    EXPECT_EQ(TypeParam::convert(table, 4), typename TypeParam::Index(2));
    EXPECT_EQ(TypeParam::resolve(table, 1, false), typename TypeParam::Index(0));
    EXPECT_EQ(TypeParam::resolve(table, 1, true), boost::none);
    EXPECT_EQ(TypeParam::resolve(table, 4, false), typename TypeParam::Index(2));
    EXPECT_EQ(TypeParam::resolve(table, 4, true), typename TypeParam::Index(1));
}

TYPED_TEST(DOM_TableTombstones, AtTheBeginningLetInsertionsBeforeAndBehindThem)
{
    Table table = makeGrid(3, 3);
    TypeParam::replace(table, 0);
    TypeParam::insert(table, Inserted, 1);
    EXPECT_EQ(this->getIDs(table), (IDs{Inserted, 2, 3}));
    EXPECT_EQ(TypeParam::convert(table, 0), boost::none);
    TypeParam::insert(table, Inserted + 1, 0);
    EXPECT_EQ(this->getIDs(table), (IDs{Inserted + 1, Inserted, 2, 3}));
    EXPECT_EQ(TypeParam::convert(table, 0), typename TypeParam::Index(0));
    EXPECT_EQ(TypeParam::convert(table, 1), boost::none);
    EXPECT_EQ(TypeParam::resolve(table, 1, false), typename TypeParam::Index(1));
}

TYPED_TEST(DOM_TableTombstones, AtTheEndLetInsertionsBeforeAndBehindThem)
{
    Table table = makeGrid(3, 3);
    TypeParam::replace(table, 2);
    TypeParam::insert(table, Inserted, 3);
    EXPECT_EQ(this->getIDs(table), (IDs{1, 2, Inserted}));
    EXPECT_EQ(TypeParam::convert(table, 2), boost::none);
    EXPECT_EQ(TypeParam::convert(table, 3), typename TypeParam::Index(2));
    TypeParam::insert(table, Inserted + 1, 2);
    EXPECT_EQ(this->getIDs(table), (IDs{1, 2, Inserted + 1, Inserted}));
    EXPECT_EQ(TypeParam::convert(table, 3), boost::none);
    EXPECT_EQ(TypeParam::resolve(table, 3, true), typename TypeParam::Index(2));
    EXPECT_EQ(TypeParam::countAll(table), 5U);
}

TYPED_TEST(DOM_TableTombstones, AreAllThatIsLeftOfATable)
{
    Table table = makeGrid(3, 3, 2);
    const Table before(table);
    auto first = TypeParam::replace(table, 0);
    auto last = TypeParam::replace(table, 2);
    auto middle = TypeParam::replace(table, 1);
    EXPECT_EQ(TypeParam::countLive(table), 0U);
    EXPECT_EQ(TypeParam::countAll(table), 3U);
    EXPECT_EQ(table.getCell(RowIndex(0), ColumnIndex(0)), nullptr);
    EXPECT_TRUE(table.getTableIterators().first == table.getTableIterators().second);
    EXPECT_TRUE(table.getTableLogicalBeginIt() == table.getTableLogicalEndIt());
    for (const std::uint64_t id : {1U, 2U, 3U}) {
        EXPECT_EQ(TypeParam::resolve(table, id, false), typename TypeParam::Index(0));
        EXPECT_EQ(TypeParam::resolve(table, id, true), boost::none);
    }
    TypeParam::restore(table, std::move(middle), 1);
    TypeParam::restore(table, std::move(last), 2);
    TypeParam::restore(table, std::move(first), 0);
    EXPECT_EQ(table, before);
}

TYPED_TEST(DOM_TableTombstones, ComeAndGoInAnyOrderWithoutTrace)
{
    constexpr unsigned Seed = 4711;
    SCOPED_TRACE(Seed);
    std::mt19937 random(Seed);
    for (int round = 0; round < 30; ++round) {
        Table table = makeGrid(7, 7, 1 + random() % 20);
        table.setSharedStyle(makeStyle<RowStyle>('1'), RowIndex(2));
        table.setSharedStyle(makeStyle<ColumnStyle>('2'), ColumnIndex(4));
        table.setMergeProps(RowIndex(1), ColumnIndex(1), 2, 0);
        table.setMergeProps(RowIndex(4), ColumnIndex(3), 1, 0);
        const Table before(table);

        std::vector<std::uint64_t> positions{0, 1, 2, 3, 4, 5, 6};
        std::shuffle(positions.begin(), positions.end(), random);
        std::vector<decltype(TypeParam::replace(table, 0))> removed;
        for (const std::uint64_t position : positions) {
            removed.push_back(TypeParam::replace(table, position));
            EXPECT_EQ(TypeParam::countAll(table), 7U);
        }
        while (!positions.empty()) {
            TypeParam::restore(table, std::move(removed.back()), positions.back());
            removed.pop_back();
            positions.pop_back();
        }
        EXPECT_EQ(table, before);
        EXPECT_EQ(getMergedRanges(table), getMergedRanges(before));
    }
}

TYPED_TEST(DOM_TableTombstones, AreForgottenOneByOneAndAllAtOnce)
{
    Table table = makeGrid(5, 5);
    TypeParam::replace(table, 1);
    TypeParam::replace(table, 2);
    TypeParam::replace(table, 4);
    EXPECT_EQ(TypeParam::remove(table, 1).id.get(), 2U);
    EXPECT_EQ(TypeParam::resolve(table, 2, false), boost::none);
    EXPECT_EQ(TypeParam::resolve(table, 3, false), typename TypeParam::Index(1));
    EXPECT_EQ(this->getIDs(table), (IDs{1, 4}));
    TypeParam::clear(table);
    EXPECT_EQ(TypeParam::countAll(table), 2U);
    EXPECT_EQ(TypeParam::resolve(table, 3, false), boost::none);
    EXPECT_EQ(TypeParam::resolve(table, 5, false), boost::none);
    EXPECT_EQ(TypeParam::resolve(table, 4, false), typename TypeParam::Index(1));
}

TYPED_TEST(DOM_TableTombstones, AreRestoredAfterASaveAndALoad)
{
    Table table = makeGrid(4, 4, 3);
    const Table before(table);
    auto removed = TypeParam::replace(table, 3);
    Table loaded = fromJson<Table>(toJson(table));
    EXPECT_EQ(loaded, table);
    TypeParam::restore(loaded, std::move(removed), 3);
    EXPECT_EQ(loaded, before);
}

TYPED_TEST(DOM_TableTombstones, GiveNoIdentifierWhenTheyWereNotRememberedForOne)
{
    // A file can state a tombstone without an identifier.
    std::string json = toJson(makeGrid(3, 3));
    const std::string none = R"({"_tombstones":[]})";
    for (std::size_t found = json.find(none); found != std::string::npos;
         found = json.find(none, found + 1)) {
        if (json.compare(found + none.size(), 16, R"(,"_idToIndexMap")") == 0) {
            json.replace(found, none.size(),
                         R"({"_tombstones":[{"_begin":{"_value":1},"_end":{"_value":2}}]})");
        }
    }
    auto table = fromJson<Table>(json);
    ASSERT_EQ(TypeParam::countAll(table), 4U);
    EXPECT_EQ(TypeParam::remove(table, 1).id.get(), 0U);
    EXPECT_EQ(TypeParam::countAll(table), 3U);
}

TYPED_TEST(DOM_TableTombstones, OutlastTheExtentAndNeedItRaisedAgainToBeRestored)
{
    Table table(RowIndex(9), ColumnIndex(9));
    auto removed = TypeParam::replace(table, 7);
    table.changeSize(RowIndex(3), ColumnIndex(3));
    EXPECT_EQ(TypeParam::countLive(table), 3U);
    EXPECT_EQ(TypeParam::countAll(table), 4U);
    EXPECT_EQ(TypeParam::resolve(table, 8, false), typename TypeParam::Index(7));
    table.ensureSize(RowIndex(7), ColumnIndex(7));
    TypeParam::restore(table, std::move(removed), 7);
    EXPECT_EQ(this->getIDs(table), (IDs{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(DOM_TableTombstonesDeathTest, AreNotRestoredBehindTheExtent)
{
    Table table(RowIndex(9), ColumnIndex(9));
    table.replaceRowWithTombstone(Position(7));
    table.replaceColWithTombstone(Position(7));
    table.changeSize(RowIndex(3), ColumnIndex(3));
    EXPECT_DEATH(table.restoreRow({{}, {}, RowID(8)}, Position(7)), R"(position\.get\(\) <= _rowsCount)");
    EXPECT_DEATH(table.restoreColumn({{}, {}, ColumnID(8)}, Position(7)),
                 R"(position\.get\(\) <= _colsCount)");
}

TEST(DOM_TableRangeAmongTombstones, ShrinksFromBothEndsAndGrowsBack)
{
    Table table = makeGrid(5, 5);
    const TableRangeByID whole = convertToTableRangeByID(table, makeRange(0, 5, 0, 5));
    RowData first = table.replaceRowWithTombstone(Position(0));
    RowData last = table.replaceRowWithTombstone(Position(4));
    table.replaceColWithTombstone(Position(4));
    EXPECT_EQ(convertToTableRange(table, whole), makeRange(0, 3, 0, 4));
    table.insertRow({{}, {}, RowID(Inserted)}, Position(0));
    EXPECT_EQ(convertToTableRange(table, whole), makeRange(1, 4, 0, 4));
    table.restoreRow(std::move(last), Position(5));
    table.restoreRow(std::move(first), Position(1));
    EXPECT_EQ(convertToTableRange(table, whole), makeRange(1, 6, 0, 4));
    EXPECT_TRUE(table.isInRange(whole, makeIndex(1, 3)));
    EXPECT_FALSE(table.isInRange(whole, makeIndex(0, 3)));
}

TEST(DOM_MergedRangeAmongTombstones, KeepsItsSizeWhenARowInsideComesAndGoes)
{
    Table table = makeGrid(6, 6);
    table.setMergeProps(RowIndex(1), ColumnIndex(1), 2, 2);
    RowData row = table.replaceRowWithTombstone(Position(3));
    ColumnData column = table.replaceColWithTombstone(Position(2));
    EXPECT_EQ(getMergedRanges(table), (std::vector{makeRange(1, 4, 1, 4)}));
    table.restoreColumn(std::move(column), Position(2));
    table.restoreRow(std::move(row), Position(3));
    EXPECT_EQ(getMergedRanges(table), (std::vector{makeRange(1, 4, 1, 4)}));
}

TEST(DOM_MergedRangeAmongTombstones, ComesAndGoesWithTheRowAndTheColumnOfItsRoot)
{
    Table table = makeGrid(6, 6);
    table.setMergeProps(RowIndex(1), ColumnIndex(1), 2, 2);
    RowData row = table.replaceRowWithTombstone(Position(1));
    EXPECT_TRUE(getMergedRanges(table).empty());
    EXPECT_EQ(row.cells[1].second->getMergeProps(), CellMergeProps(2, 2));
    table.restoreRow(std::move(row), Position(1));
    EXPECT_EQ(getMergedRanges(table), (std::vector{makeRange(1, 4, 1, 4)}));
    ColumnData column = table.replaceColWithTombstone(Position(1));
    EXPECT_TRUE(getMergedRanges(table).empty());
    table.restoreColumn(std::move(column), Position(1));
    EXPECT_EQ(getMergedRanges(table), (std::vector{makeRange(1, 4, 1, 4)}));
}

TEST(DOM_MergedRangeAmongTombstones, RaisesTheExtentWhenItsRootsColumnComesBackBeforeItsOthers)
{
    Table table = makeGrid(1, 3);
    table.setMergeProps(RowIndex(0), ColumnIndex(1), 0, 1);
    table.replaceColWithTombstone(Position(2));
    ColumnData column = table.replaceColWithTombstone(Position(1));
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(1));
    table.restoreColumn(std::move(column), Position(1));
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(3));
    EXPECT_EQ(getMergedRanges(table), (std::vector{makeRange(0, 1, 1, 3)}));
}

TEST(DOM_MergedRangeAmongTombstones, MovesAsAWholeWithWhatComesAndGoesBeforeIt)
{
    Table table = makeGrid(6, 6);
    table.setMergeProps(RowIndex(2), ColumnIndex(3), 2, 1);
    RowData row = table.replaceRowWithTombstone(Position(0));
    ColumnData column = table.replaceColWithTombstone(Position(1));
    EXPECT_EQ(getMergedRanges(table), (std::vector{makeRange(1, 4, 2, 4)}));
    EXPECT_EQ(table.getMergedCellRoot(RowIndex(3), ColumnIndex(3)), makeIndex(1, 2));
    table.restoreColumn(std::move(column), Position(1));
    table.restoreRow(std::move(row), Position(0));
    EXPECT_EQ(getMergedRanges(table), (std::vector{makeRange(2, 5, 3, 5)}));
}

TEST(DOM_PivotAreaAmongTombstones, StaysWithoutItsRootAndStandsBesideTheOneThatComesBack)
{
    Table rows = makeGrid(6, 6);
    rows.setPivotTable(RowIndex(1), ColumnIndex(2), makePivotTable(2, 3));
    RowData row = rows.replaceRowWithTombstone(Position(1));
    EXPECT_EQ(getPivotRanges(rows), (std::vector{makeRange(1, 4, 2, 4)}));
    rows.restoreRow(std::move(row), Position(1));
    EXPECT_EQ(getPivotRanges(rows), (std::vector{makeRange(2, 5, 2, 4), makeRange(1, 4, 2, 4)}));
    EXPECT_NE(rows.getCell(RowIndex(1), ColumnIndex(2))->getPivotTable(), nullptr);

    Table columns = makeGrid(6, 6);
    columns.setPivotTable(RowIndex(1), ColumnIndex(2), makePivotTable(2, 3));
    ColumnData column = columns.replaceColWithTombstone(Position(2));
    EXPECT_EQ(getPivotRanges(columns), (std::vector{makeRange(1, 4, 2, 4)}));
    columns.restoreColumn(std::move(column), Position(2));
    EXPECT_EQ(getPivotRanges(columns), (std::vector{makeRange(1, 4, 3, 5), makeRange(1, 4, 2, 4)}));
}

} // namespace
} // namespace QN::DOM::TableTombstonesTest
