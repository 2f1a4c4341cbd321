#include <gtest/gtest.h>

#include <boost/unordered/unordered_flat_map.hpp>

#include <utility>
#include <vector>

#include "DOM/Tables/DamagedTables.h"
#include "DOM/Validator/DOM_Validator.h"
#include "DOM/Validator/TableFaults.h"
#include "Utils/Public/SeededHash.h"

/// The rules of a table's own storage, and the walk through one that is damaged.

namespace QN::DOM::ValidatorTableStorageTest {
namespace {

using namespace Test;

RowColIDContainer& getRowIDs(Table& table)
{
    return getMember<RowColIDContainer>(table, "_rowIDContainer");
}

RowColIDContainer& getColIDs(Table& table)
{
    return getMember<RowColIDContainer>(table, "_colIDContainer");
}

using IDToIndex = boost::unordered_flat_map<std::uint64_t, std::uint64_t, SeededHash>;
using Items = std::vector<RowColIDContainer::IndexID>;

constexpr std::uint64_t RowUID = 2000000;
constexpr std::uint64_t ColumnUID = 3000000;

Document makeSheetWithInsertedRowAndColumn()
{
    Document document = makeSheetDocument();
    RowData row;
    row.id = RowID(RowUID);
    getSheet(document).insertRow(std::move(row), RowIndex(1));
    ColumnData column;
    column.id = ColumnID(ColumnUID);
    getSheet(document).insertColumn(std::move(column), ColumnIndex(1));
    return document;
}

// The table's own invariants

ExpectedRule makeTableRule(std::string condition)
{
    return {"DOM/Tables/DOM_Table.cpp", 0, std::move(condition)};
}

ExpectedRule makeContainerRule(std::string condition)
{
    return {"DOM/Tables/DOM_RowColIDContainer.cpp", 0, std::move(condition)};
}

TEST(ValidatorTableStorageTest, MergedRangesStandInLiveRows)
{
    using Cache = MergedCellsCache;
    expectRule(makeTableRule("getLiveRowsCount().get() > mergedCellsBounds.rowIndex.get()"),
               makeSheetDocument,
               {makeTableFault([](Table& table) {
                    getMember<Cache>(table, "_mergedCellsCache").mergeCells(makeRange(3, 4, 0, 2));
                }),
                makeTableFault([](Table& table) {
                    getMember<Cache>(table, "_mergedCellsCache").mergeCells(makeRange(2, 9, 0, 1));
                }),
                makeTableFault([](Table& table) {
                    getMember<Cache>(table, "_mergedCellsCache").mergeCells(makeRange(100, 101, 0, 1));
                })});
}

TEST(ValidatorTableStorageTest, MergedRangesStandInLiveColumns)
{
    using Cache = MergedCellsCache;
    expectRule(makeTableRule("getLiveColsCount().get() > mergedCellsBounds.colIndex.get()"),
               makeSheetDocument,
               {makeTableFault([](Table& table) {
                    getMember<Cache>(table, "_mergedCellsCache").mergeCells(makeRange(0, 1, 3, 4));
                }),
                makeTableFault([](Table& table) {
                    getMember<Cache>(table, "_mergedCellsCache").mergeCells(makeRange(2, 3, 2, 9));
                }),
                makeTableFault([](Table& table) {
                    getMember<Cache>(table, "_mergedCellsCache").mergeCells(makeRange(1, 2, 16383, 16384));
                })});
}

TEST(ValidatorTableStorageTest, PivotTablesStandInLiveRows)
{
    using Cache = PivotTablesCache;
    expectRule(
        makeTableRule("getLiveRowsCount().get() > pivotTablesBounds.rowIndex.get()"), makeSheetDocument,
        {makeTableFault([](Table& table) {
             getMember<Cache>(table, "_pivotTablesCache").addPivot(RowIndex(3), ColumnIndex(0), {1, 1});
         }),
         makeTableFault([](Table& table) {
             getMember<Cache>(table, "_pivotTablesCache")
                 .addPivot(RowIndex(9), ColumnIndex(2), {1, 4000000000});
         }),
         makeTableFault([](Table& table) {
             getMember<Cache>(table, "_pivotTablesCache").addPivot(RowIndex(5), ColumnIndex(1), {2, 1});
         })});
}

TEST(ValidatorTableStorageTest, PivotTablesStandInLiveColumns)
{
    using Cache = PivotTablesCache;
    expectRule(
        makeTableRule("getLiveColsCount().get() > pivotTablesBounds.colIndex.get()"), makeSheetDocument,
        {makeTableFault([](Table& table) {
             getMember<Cache>(table, "_pivotTablesCache").addPivot(RowIndex(0), ColumnIndex(3), {1, 1});
         }),
         makeTableFault([](Table& table) {
             getMember<Cache>(table, "_pivotTablesCache")
                 .addPivot(RowIndex(2), ColumnIndex(9), {4000000000, 1});
         }),
         makeTableFault([](Table& table) {
             getMember<Cache>(table, "_pivotTablesCache").addPivot(RowIndex(1), ColumnIndex(5), {1, 2});
         })});
}

TEST(ValidatorTableStorageTest, ATableHasARowAndAColumn)
{
    Document document;
    document.getBlocks().push_back(std::make_unique<Table>());
    const auto findings = Validator::collectFindings(document);
    ASSERT_EQ(findings.size(), 4U) << getTexts(findings);
    EXPECT_EQ(findings[0].condition, "getLiveRowsCount().get() > mergedCellsBounds.rowIndex.get()");
    EXPECT_EQ(findings[3].condition, "getLiveColsCount().get() > pivotTablesBounds.colIndex.get()");
    expectBothWaysAgree(document);
}

TEST(ValidatorTableStorageTest, InsertedIdentifiersAreAboveThePredefinedOnes)
{
    const auto replace = [](RowColIDContainer& ids, std::uint64_t from, std::uint64_t to) {
        auto& map = getMember<IDToIndex>(ids, "_idToIndex");
        map[to] = map[from];
        map.erase(from);
        getMember<Items>(ids, "_insertedItems").front().id = to;
    };
    const auto makeFault = [&](auto getIDs, std::uint64_t from, std::uint64_t to) {
        return Fault{[=](Document& document) {
                         replace(getIDs(getSheet(document)), from, to);
                         return SheetAddress;
                     },
                     "", 2};
    };
    expectRule(makeContainerRule("indexId.id > _predefinedIDsCount"), makeSheetWithInsertedRowAndColumn,
               {makeFault(getRowIDs, RowUID, 1048576), makeFault(getRowIDs, RowUID, 0),
                makeFault(getColIDs, ColumnUID, 16384), makeFault(getColIDs, ColumnUID, 5)});
}

TEST(ValidatorTableStorageTest, InsertedIdentifiersAreKnownWithTheirIndex)
{
    expectRule(
        makeContainerRule("it != _idToIndex.end() && it->second == indexId.index"),
        makeSheetWithInsertedRowAndColumn,
        {makeTableFault([](Table& table) { getMember<IDToIndex>(getRowIDs(table), "_idToIndex").clear(); }),
         makeTableFault([](Table& table) { getMember<IDToIndex>(getColIDs(table), "_idToIndex").clear(); }),
         makeTableFault(
             [](Table& table) { getMember<IDToIndex>(getRowIDs(table), "_idToIndex")[RowUID] = 2; }, 2)});
}

TEST(ValidatorTableStorageTest, KnownIdentifiersAreAboveThePredefinedOnes)
{
    expectRule(
        makeContainerRule("id > _predefinedIDsCount"), makeSheetWithInsertedRowAndColumn,
        {makeTableFault([](Table& table) { getMember<IDToIndex>(getRowIDs(table), "_idToIndex")[3] = 7; }, 2),
         makeTableFault(
             [](Table& table) { getMember<IDToIndex>(getRowIDs(table), "_idToIndex")[1048576] = 1; }, 2),
         makeTableFault([](Table& table) { getMember<IDToIndex>(getColIDs(table), "_idToIndex")[0] = 0; },
                        2)});
}

TEST(ValidatorTableStorageTest, KnownIdentifiersAreInserted)
{
    expectRule(
        makeContainerRule("it != _insertedItems.end() && it->index == index && it->id == id"),
        makeSheetWithInsertedRowAndColumn,
        {makeTableFault(
             [](Table& table) { getMember<IDToIndex>(getRowIDs(table), "_idToIndex")[RowUID + 1] = 1; }),
         makeTableFault([](Table& table) { getMember<Items>(getRowIDs(table), "_insertedItems").clear(); }),
         makeTableFault(
             [](Table& table) { getMember<IDToIndex>(getColIDs(table), "_idToIndex")[ColumnUID + 1] = 5; })});
}

// Damaged storage

Document makeDamagedDocument(std::size_t cells, std::vector<std::uint64_t> offsets)
{
    Document document;
    document.getBlocks().push_back(std::make_unique<Table>(makeDamagedTable(cells, std::move(offsets))));
    return document;
}

/// Where cells are null, which is all that is wrong; in one line, without the step to the table.
std::string findNullCells(const Document& document)
{
    std::string addresses;
    for (const Finding& finding : Validator::collectFindings(document)) {
        EXPECT_EQ(finding.condition, "plainPtr");
        const std::string address = finding.getAddress().toString();
        EXPECT_TRUE(address.starts_with(SheetAddress + "/cell")) << address;
        addresses += " " + address.substr(SheetAddress.size() + 5);
    }
    return addresses;
}

TEST(ValidatorTableStorageTest, ACellThatDamagedRowsShareIsValidatedInTheFirst)
{
    // The rows hold the cells 0 to 3, none, 2 to 5, none, and all.
    EXPECT_EQ(findNullCells(makeDamagedDocument(6, {0, 4, 2, 6, 0})),
              " (0, 0) (0, 1) (0, 2) (0, 3) (2, 4) (2, 5)");
}

TEST(ValidatorTableStorageTest, ACellBehindOneOfAnEarlierDamagedRowIsValidated)
{
    EXPECT_EQ(findNullCells(makeDamagedDocument(2, {1, 2, 0})), " (0, 1) (2, 0)");
    EXPECT_EQ(findNullCells(makeDamagedDocument(6, {4, 6, 0})), " (0, 4) (0, 5) (2, 0) (2, 1) (2, 2) (2, 3)");
}

TEST(ValidatorTableStorageTest, CellsOfDamagedRowsAreValidatedWhateverTheirColumns)
{
    const auto findWithColumns = [](const std::vector<std::uint64_t>& ids) {
        Document document = makeDamagedDocument(6, {0, 4, 0});
        for (std::size_t cell = 0; cell < ids.size(); ++cell) {
            getFirstChunk(getSheet(document)).data[cell].colID = ColumnID(ids[cell]);
        }
        return findNullCells(document);
    };
    // Equal, unknown, unsorted.
    EXPECT_EQ(findWithColumns({3, 3, 3, 3, 3, 3}), " (0, 2) (0, 2) (0, 2) (0, 2) (2, 2) (2, 2)");
    constexpr std::uint64_t Unknown = 99999999;
    EXPECT_EQ(findWithColumns({Unknown, Unknown, Unknown, Unknown, Unknown, Unknown}),
              " (0, 16384) (0, 16384) (0, 16384) (0, 16384) (2, 16384) (2, 16384)");
    EXPECT_EQ(findWithColumns({6, 5, 4, 3, 2, 1}), " (0, 5) (0, 4) (0, 3) (0, 2) (2, 1) (2, 0)");
}

TEST(ValidatorTableStorageTest, DamagedRowsThatAllShareTheirCellsAreWalkedOnce)
{
    // Else there were 2,000,000,000 findings.
    constexpr std::size_t Cells = 20000;
    const Document document = makeDamagedDocument(Cells, makeSharedOffsets(Cells, 200000));
    EXPECT_EQ(Validator::collectFindings(document).size(), Cells);
}

TEST(ValidatorTableStorageTest, ACellOfADamagedRowThatAnIteratorPassesOverIsValidated)
{
    EXPECT_EQ(findNullCells(makeDamagedDocument(3, {1, 1, 0, 1})), " (2, 0) (3, 1) (3, 2)");
}

TEST(ValidatorTableStorageTest, DamagedRowsWithoutOrderAreWalkedWhole)
{
    Document document = makeDamagedDocument(6, {0, 5, 0, 5, 1, 6, 0});
    auto& data = getFirstChunk(getSheet(document)).data;
    std::swap(data[0].colID, data[5].colID);
    data[1].colID = ColumnID(99999999);
    data[4].colID = ColumnID(0);
    EXPECT_EQ(Validator::collectFindings(document).size(), 6U);
}

TEST(ValidatorTableStorageTest, WhatDependsOnThePlaceOfASharedCellIsAskedInItsFirstRowOnly)
{
    const auto makeWithMergedRow = [](std::uint64_t row) {
        Document document;
        document.getBlocks().push_back(
            std::make_unique<Table>(makeDamagedTable(2, {0, 2, 0}, [] { return makeNumberCell(5.0); })));
        getMember<MergedCellsCache>(getSheet(document), "_mergedCellsCache")
            .mergeCells(makeRange(row, row + 1, 0, 2));
        return document;
    };
    const auto findings = Validator::collectFindings(makeWithMergedRow(0));
    ASSERT_EQ(findings.size(), 1U) << getTexts(findings);
    EXPECT_EQ(findings[0].line, 118);
    expectValid(makeWithMergedRow(2));
}

TEST(ValidatorTableStorageTest, DamagedRowsThatShareCellsBehindAllColumnsEndTheWalk)
{
    Document document = makeDamagedDocument(2, {0, 2, 0});
    Table& table = getSheet(document);
    getMember<IDToIndex>(getColIDs(table), "_idToIndex")[ColumnUID] = std::uint64_t{1} << 60U;
    for (CellDataByCol& cell : getFirstChunk(table).data) {
        cell.colID = ColumnID(ColumnUID);
    }
    std::string conditions;
    for (const Finding& finding : Validator::collectFindings(document)) {
        conditions += std::string(finding.condition) + "\n";
    }
    EXPECT_EQ(conditions, "it != _insertedItems.end() && it->index == index && it->id == id\n"
                          "plainPtr\nplainPtr\n");
}

} // namespace
} // namespace QN::DOM::ValidatorTableStorageTest
