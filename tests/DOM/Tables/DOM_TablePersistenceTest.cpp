#include <gtest/gtest.h>

#include <string>

#include "DOM/FamilyChecks.h"
#include "DOM/FormulaSyntaxTree/DOM_Bool.h"
#include "DOM/Tables/Filters/DOM_ValuesTableFilter.h"
#include "DOM/Tables/TableInspection.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::TablePersistenceTest {
namespace {

using namespace QN::Test;
using Position = Table::IndexIncludingTombstones;

Table makeNilTable()
{
    Table table;
    table.setUUID(UUID());
    return table;
}

/// A table of which no member has its default.
Table makeFullTable()
{
    Table table = makeGrid(4, 3, 5);
    table.setName("Sheet 1");
    table.insertRow({{}, {}, RowID(5'000'000'000)}, RowIndex(1));
    table.insertColumn({{}, {}, ColumnID(6'000'000'000)}, ColumnIndex(1));
    table.replaceRowWithTombstone(Position(3));
    table.replaceColWithTombstone(Position(2));
    table.getDefinedNames()["tax"] = std::make_unique<FormulaSyntaxTree::Bool>(true);
    table.setSharedStyle(makeStyle<TableStyle>('1'));
    table.getFrames().getElements().push_back(std::make_unique<Frame>());
    table.getFrames().getElements().push_back(nullptr);
    table.setSharedStyle(makeStyle<RowStyle>('2'), RowIndex(1));
    table.setSharedStyle(makeStyle<ColumnStyle>('3'), ColumnIndex(1));
    TableFilterInfo filterInfo(makeRange(0, 3, 0, 2));
    filterInfo.setFilter(std::make_unique<ValuesTableFilter>(ColumnIndex(1)));
    table.setFilterInfo(std::move(filterInfo));
    table.setHeaderRowsCols(RowIndex(0), ColumnIndex(0), RowIndex(1), ColumnIndex(0));
    table.getTableSettings().setShowZeroValue(false);
    table.setMergeProps(RowIndex(0), ColumnIndex(0), 1, 0);
    table.setPivotTable(RowIndex(2), ColumnIndex(1), makePivotTable(1, 1));
    table.getConditionalFormats().getElements().push_back(std::make_unique<ConditionalFormat>());
    return table;
}

const std::string EmptyTombstones = R"({"_tombstones":{"_tombstones":[]},"_idToIndexMap":[]})";

/// A default table with these chunks and counts.
std::string makeJson(const std::string& chunks, const std::string& rows = "0",
                     const std::string& columns = "0")
{
    const auto container = [](const std::string& count) {
        return R"({"_predefinedIDs":[{"index":0,"idRange":{"first":1,"second":)" + count +
               R"(}}],"_insertedItems":[],"_idToIndex":[],"_predefinedIDsCount":)" + count + "}";
    };
    return R"({"value0":{},"value1":{"_uuid":{"_id":"00000000-0000-0000-0000-000000000000"}},"_name":"","_chunks":)" +
           chunks + R"(,"_rowIDContainer":)" + container("1048576") + R"(,"_colIDContainer":)" +
           container("16384") + R"(,"_colsTombstones":)" + EmptyTombstones + R"(,"_rowsTombstones":)" +
           EmptyTombstones +
           R"(,"_definedNames":[],"_style":{"id":0},"_frames":{"_elements":[],"_tombstones":{"_tombstones":[]}},)"
           R"("_rowStyles":[],"_columnStyles":[],"_filterInfo":{"hasValue":false},)"
           R"("_headerRowsCols":{"hasValue":false},"_tableSettings":{"_showZeroValue":true,)"
           R"("_groupingProps":{"_isSummaryBelow":true,"_isSummaryRight":true}},)"
           R"("_mergedCellsCache":{"_mergedRanges":[]},"_pivotTablesCache":{"_pivotRanges":[]},)"
           R"("_maxChunkSize":20000,"_rowsCount":)" +
           rows + R"(,"_colsCount":)" + columns +
           R"(,"_conditionalFormats":{"_elements":[],"_tombstones":{"_tombstones":[]}}})";
}

const std::string OneChunk = R"([{"data":[],"rowDataOffsets":[],"startRowIndex":{"_value":0}}])";

TEST(DOM_TablePersistence, WritesItsDefaultsInTheOrderOfItsMembers)
{
    expectText(makeNilTable(), makeJson(OneChunk));
}

TEST(DOM_TablePersistence, WritesItsCellsByTheIdentifiersOfTheirColumns)
{
    Table table = makeNilTable();
    table.getOrCreateCell(RowIndex(1), ColumnIndex(2));
    expectText(
        table,
        makeJson(R"([{"data":[{"cell":{"ptr_wrapper":{"valid":1,"data":)" + toText(Cell()) +
                     R"(}},"colID":{"_value":3}}],"rowDataOffsets":[0,0],"startRowIndex":{"_value":0}}])",
                 "2", "3"));
}

TEST(DOM_TablePersistence, WritesNamesAndStylesUnderTheirKeys)
{
    Table table = makeNilTable();
    table.getDefinedNames()["tax"] = std::make_unique<FormulaSyntaxTree::Bool>(true);
    table.setSharedStyle(makeStyle<RowStyle>('2'), RowIndex(1));
    const std::string json = toText(table);
    EXPECT_NE(
        json.find(R"json("_definedNames":[{"key":"tax","value":{"this->getPtr()":{)json"
                  R"("polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::FormulaSyntaxTree::Bool",)"
                  R"("ptr_wrapper":{"valid":1,"data":{"value0":{"value0":{}},"_bool":true}}}}}])"),
        std::string::npos)
        << json;
    EXPECT_NE(
        json.find(R"("_rowStyles":[{"key":{"_value":2},"value":{"id":2147483649,"value0":{"ptr_wrapper":)"
                  R"({"valid":1,"data":{"_style":)"),
        std::string::npos)
        << json;
}

TEST(DOM_TablePersistence, KeepsEverything)
{
    const Table table = makeFullTable();
    expectRoundTrip(table);
    expectOrderDoesNotMatter(table);
    const auto loaded = fromJson<Table>(toJson(table));
    EXPECT_EQ(getChunkTexts(loaded), getChunkTexts(table));
    EXPECT_EQ(toJson(loaded), toJson(table));
    EXPECT_EQ(loaded.getFilterInfo(), table.getFilterInfo());
    EXPECT_EQ(loaded.getHeaderRowsCols(), table.getHeaderRowsCols());
    EXPECT_EQ(loaded.getTableSettings(), table.getTableSettings());
    EXPECT_EQ(loaded.getConditionalFormats(), table.getConditionalFormats());
    EXPECT_EQ(loaded.getMergedRange(RowIndex(1), ColumnIndex(0)), makeRange(0, 2, 0, 1));
    EXPECT_EQ(loaded.getPivotRoot(RowIndex(2), ColumnIndex(1)), makeIndex(2, 1));
}

TEST(DOM_TablePersistence, MissesEachKeyThatIsNotThere)
{
    expectMissingKeysFail(makeFullTable());
}

TEST(DOM_TablePersistence, IsABlock)
{
    const std::unique_ptr<Block> block = std::make_unique<Table>(makeNilTable());
    expectText(block, makePolymorphicJson("QN::DOM::Table", makeJson(OneChunk)));
}

/// The message for a table with these chunks.
std::string getError(const std::string& chunks)
{
    return loadError<Table>(makeJson(chunks));
}

std::string makeChunkJson(const std::string& startRow, const std::string& offsets)
{
    return R"({"data":[],"rowDataOffsets":)" + offsets + R"(,"startRowIndex":{"_value":)" + startRow + "}}";
}

TEST(DOM_TablePersistence, RefusesChunksThatDoNotFollowEachOther)
{
    EXPECT_EQ(getError("[]"), "A table cannot be loaded: it has no chunks");
    EXPECT_EQ(getError("[" + makeChunkJson("1", "[]") + "]"),
              "A table cannot be loaded: its first chunk does not start at row 0");
    EXPECT_EQ(getError("[" + makeChunkJson("0", "[0]") + "," + makeChunkJson("0", "[0]") + "]"),
              "A table cannot be loaded: its chunks are not sorted");
    EXPECT_EQ(getError("[" + makeChunkJson("0", "[0,0]") + "," + makeChunkJson("2", "[0]") + "," +
                       makeChunkJson("1", "[0]") + "]"),
              "A table cannot be loaded: its chunks are not sorted");
    EXPECT_EQ(getError("[" + makeChunkJson("0", "[0]") + "," + makeChunkJson("2", "[]") + "]"),
              "A table cannot be loaded: a chunk has another number of offsets than of rows");
    EXPECT_EQ(getError("[" + makeChunkJson("0", "[0,0,0]") + "," + makeChunkJson("2", "[]") + "]"),
              "A table cannot be loaded: a chunk has another number of offsets than of rows");
    EXPECT_EQ(getError("[" + makeChunkJson("0", "[0,0]") + "," + makeChunkJson("2", "[]") + "]"), "<loaded>");
}

TEST(DOM_TablePersistence, RefusesCountsBeyondTheLimits)
{
    EXPECT_EQ(loadError<Table>(makeJson(OneChunk, "1048577")),
              "A table cannot be loaded: it has more rows than a table can have");
    EXPECT_EQ(loadError<Table>(makeJson(OneChunk, "0", "16385")),
              "A table cannot be loaded: it has more columns than a table can have");
    EXPECT_EQ(loadError<Table>(makeJson(OneChunk, "1048576", "16384")), "<loaded>");
}

TEST(DOM_TablePersistence, JudgesNoOffsets)
{
    const auto table =
        fromJson<Table>(makeJson("[" + makeChunkJson("0", "[9,3,18446744073709551615,0]") + "]", "4", "1"));
    EXPECT_EQ(table.getCell(RowIndex(2), ColumnIndex(0)), nullptr);
    EXPECT_EQ(getOffsets(table, 0), (std::vector<std::uint64_t>{9, 3, 18446744073709551615U, 0}));
}

TEST(DOM_TablePersistence, TakesRowsBehindTheLiveOnesWhichAreNotWalkedOver)
{
    std::string json = toJson(makeGrid(4, 1, 2));
    const std::string count = R"("_rowsCount":4)";
    json.replace(json.find(count), count.size(), R"("_rowsCount":2)");
    auto table = fromJson<Table>(json);
    EXPECT_EQ(toJson(table), json);
    EXPECT_EQ(getNumber(table, 3, 0), 30.0);
    std::vector<double> walked;
    for (const Cell* const cell : std::as_const(table).getTableIterators()) {
        walked.push_back(getNumber(cell));
    }
    EXPECT_EQ(walked, (std::vector{0.0, 10.0}));
    EXPECT_TRUE(table.removeRow(RowIndex(2)).cells.empty());
    EXPECT_EQ(table.changeSize(RowIndex(0), ColumnIndex(0)), makeIndex(2, 1));
    table.insertRow({{}, {}, RowID(5'000'000'000)}, RowIndex(2));
    EXPECT_EQ(getNumber(table, 4, 0), 30.0);
}

TEST(DOM_TablePersistence, RefusesAnEmptyMergedRange)
{
    std::string json = makeJson(OneChunk);
    const std::string empty = R"("_mergedRanges":[])";
    json.replace(json.find(empty), empty.size(),
                 R"("_mergedRanges":[{"_beginRow":{"_value":1},"_endRow":{"_value":1},)"
                 R"("_beginColumn":{"_value":0},"_endColumn":{"_value":1}}])");
    EXPECT_NE(loadError<Table>(json), "<loaded>");
}

// Copies

TEST(DOM_Table, IsCopiedDeeplyWithItsIdentity)
{
    Table source = makeFullTable();
    source.setUUID(UUID::generate());
    const Table copy(source);
    EXPECT_EQ(copy, source);
    EXPECT_EQ(toJson(copy), toJson(source));
    EXPECT_EQ(copy.getUUID(), source.getUUID());
    EXPECT_EQ(copy.IDHolder::getID(), source.IDHolder::getID());
    EXPECT_NE(copy.getCell(RowIndex(0), ColumnIndex(0)),
              std::as_const(source).getCell(RowIndex(0), ColumnIndex(0)));
    EXPECT_NE(copy.getDefinedNames().at("tax").get(),
              std::as_const(source).getDefinedNames().at("tax").get());
    EXPECT_NE(copy.getFrames().getElements()[0], std::as_const(source).getFrames().getElements()[0]);
    EXPECT_NE(copy.getConditionalFormats().getElements()[0],
              std::as_const(source).getConditionalFormats().getElements()[0]);
    EXPECT_NE(copy.getFilterInfo()->getFilter(), std::as_const(source).getFilterInfo()->getFilter());
    EXPECT_EQ(copy.getSharedStyle(), source.getSharedStyle());
    setNumber(source, 0, 0, 99.0);
    EXPECT_NE(copy, source);
    EXPECT_EQ(getNumber(copy, 0, 0), 0.0);
}

TEST(DOM_Table, IsCopiedAssignedMovedAndClonedAsItself)
{
    expectCopiesAndMoves(makeFullTable());
    expectInFamily<Block>(makeNilTable(), "QN::DOM::Table", makeJson(OneChunk));
}

TEST(DOM_Table, HoldsWhatItIsGiven)
{
    Table table = makeFullTable();
    EXPECT_EQ(table.getName(), "Sheet 1");
    table.setDefinedNames({});
    EXPECT_TRUE(table.getDefinedNames().empty());
    table.setFilterInfo(boost::none);
    EXPECT_FALSE(table.getFilterInfo());
    EXPECT_EQ(table.getLiveFrames().size(), 2U);
    EXPECT_EQ(table.getLiveConditionalFormats().size(), 1U);
}

TEST(DOM_TableDeathTest, HasNoLiveFrameThatIsNull)
{
    const Table table = makeFullTable();
    EXPECT_EQ(table.getLiveFrames()[0], Frame());
    EXPECT_DEATH(table.getLiveFrames()[1], "plainPtr");
}

} // namespace
} // namespace QN::DOM::TablePersistenceTest
