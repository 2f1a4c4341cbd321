#include "DOM/Utils/DOM_CleanDOM.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "DOM/DOM_Comment.h"
#include "DOM/DOM_Document.h"
#include "DOM/DOM_HeaderFooterPair.h"
#include "DOM/DOM_Note.h"
#include "DOM/DOM_SectionTag.h"
#include "DOM/Shapes/DOM_Shape.h"
#include "DOM/Tables/DamagedTables.h"
#include "DOM/Tables/TableInspection.h"
#include "DOM/TextSamples.h"
#include "Support/RoundTrip.h"
#include "Support/SmallStack.h"

namespace QN::DOM::CleanDOMTest {

namespace {

using namespace QN::Test;
using CollaborationUtils::IndexIncludingTombstones;

constexpr DOMCleanType All = DOMCleanType::Tombstones | DOMCleanType::UUID | DOMCleanType::RowColumnIDs;
constexpr IndexIncludingTombstones First(0);

/// A paragraph, and a tombstone before it.
void fill(TextWithTombstones& text)
{
    text.getBlocks().push_back(makeParagraph({"text"}));
    text.getTombstones().replaceWithTombstone(First);
}

bool hasTombstones(const TextWithTombstones& text)
{
    return text.getTombstones().getTombstonesCount() != 0;
}

/// A grid of 3 by 3 that lost its first row and its first column, got a row in the middle and has a style for it; with
/// tombstones of rows, columns, frames, conditional formats and the text of its first cell.
std::unique_ptr<Table> makeEditedTable()
{
    auto table = std::make_unique<Table>(makeGrid(3, 3));
    table->setUUID(makeUUID('1'));
    table->setName("Sheet");
    table->replaceRowWithTombstone(First);
    table->replaceColWithTombstone(First);
    RowData row;
    row.id = table->generateID<RowID>();
    table->insertRow(std::move(row), RowIndex(1));
    table->setSharedStyle(makeStyle<RowStyle>('5'), RowIndex(1));
    table->getFrames().getTombstones().replaceWithTombstone(First);
    table->getConditionalFormats().getTombstones().replaceWithTombstone(First);
    fill(table->getCell(RowIndex(0), ColumnIndex(0))->getTextWithTombstones());
    return table;
}

bool hasTextTombstones(const Table& table)
{
    bool isFound = false;
    for (const Cell* const cell : table.getTableIterators()) {
        isFound = isFound || (cell != nullptr && hasTombstones(cell->getTextWithTombstones()));
    }
    return isFound;
}

bool hasTableTombstones(const Table& table)
{
    const bool hasRow = table.getAllRowsCount().get() != table.getLiveRowsCount().get();
    const bool hasColumn = table.getAllColsCount().get() != table.getLiveColsCount().get();
    const bool hasFrame = table.getFrames().getTombstones().getTombstonesCount() != 0;
    EXPECT_EQ(hasRow, hasColumn);
    EXPECT_EQ(hasRow, hasFrame);
    return hasRow;
}

bool hasPredefinedIDs(const Table& table)
{
    for (std::uint64_t index = 0; index < 4; ++index) {
        if (table.getID(RowIndex(index)) != RowID(index + 1) ||
            table.getID(ColumnIndex(index)) != ColumnID(index + 1)) {
            return false;
        }
    }
    return true;
}

/// What `makeEditedTable` becomes by the flags.
void expectCleaned(const Table& table, DOMCleanType type)
{
    const auto has = [&](DOMCleanType flag) { return (type & flag) == flag; };
    EXPECT_FALSE(hasTextTombstones(table));
    EXPECT_EQ(hasTableTombstones(table), !has(DOMCleanType::Tombstones));
    EXPECT_EQ(table.getUUID(), has(DOMCleanType::UUID) ? UUID() : makeUUID('1'));
    EXPECT_EQ(hasPredefinedIDs(table), has(DOMCleanType::RowColumnIDs));

    EXPECT_EQ(table.getName(), "Sheet");
    EXPECT_EQ(table.getLiveRowsCount(), RowIndex(3));
    EXPECT_EQ(table.getLiveColsCount(), ColumnIndex(2));
    EXPECT_EQ(getNumber(table, 0, 1), 12.0);
    EXPECT_EQ(getNumber(table, 2, 0), 21.0);
    EXPECT_EQ(table.getCell(RowIndex(0), ColumnIndex(0))->getRawBlocks().size(), 2U);
    EXPECT_EQ(table.getStyle(RowIndex(1)).getParentUUID(), makeUUID('5'));
    EXPECT_EQ(table.getConditionalFormats().getTombstones().getTombstonesCount(), 1U);
}

Table& getTable(TextWithTombstones& text, std::size_t index)
{
    return dynamic_cast<Table&>(*text.getBlocks()[index]);
}

/// What every kind of node is cleaned with, since without flags only texts change.
constexpr DOMCleanType NoneAndAll[] = {DOMCleanType::None, All};

TEST(DOMCleanTypeTest, FlagsAreBits)
{
    EXPECT_EQ(static_cast<unsigned>(DOMCleanType::Tombstones), 1U);
    EXPECT_EQ(static_cast<unsigned>(DOMCleanType::UUID), 2U);
    EXPECT_EQ(static_cast<unsigned>(DOMCleanType::RowColumnIDs), 4U);
    EXPECT_EQ(All, static_cast<DOMCleanType>(7));
    EXPECT_EQ(All & DOMCleanType::UUID, DOMCleanType::UUID);
    EXPECT_EQ(DOMCleanType::Tombstones & DOMCleanType::UUID, DOMCleanType::None);
}

TEST(CleanDOMTest, ATableIsCleanedByEachSetOfFlags)
{
    for (unsigned flags = 0; flags < 8; ++flags) {
        SCOPED_TRACE(flags);
        const auto table = makeEditedTable();
        ASSERT_TRUE(hasTextTombstones(*table) && hasTableTombstones(*table) && !hasPredefinedIDs(*table));
        cleanDOM(*table, static_cast<DOMCleanType>(flags));
        expectCleaned(*table, static_cast<DOMCleanType>(flags));
    }
}

TEST(CleanDOMTest, UnknownFlagsDoNothing)
{
    const auto table = makeEditedTable();
    cleanDOM(*table, static_cast<DOMCleanType>(~7U));
    expectCleaned(*table, DOMCleanType::None);
}

TEST(CleanDOMTest, CleaningTwiceChangesNothingMore)
{
    const auto table = makeEditedTable();
    cleanDOM(*table, All);
    const std::string once = toJson(*table);
    cleanDOM(*table, All);
    EXPECT_EQ(toJson(*table), once);
}

TEST(CleanDOMTest, TheTombstonesOfATextGoWhateverTheFlags)
{
    for (unsigned flags = 0; flags < 8; ++flags) {
        TextWithTombstones text;
        fill(text);
        cleanDOM(text, static_cast<DOMCleanType>(flags));
        EXPECT_FALSE(hasTombstones(text)) << flags;
        EXPECT_EQ(text.getBlocks().size(), 1U) << flags;
    }
}

TEST(CleanDOMTest, ATextIsCleanedWithItsTables)
{
    TextWithTombstones text;
    fill(text);
    text.getBlocks().push_back(makeEditedTable());
    text.getBlocks().push_back(makeEditedTable());
    cleanDOM(text, DOMCleanType::UUID);
    expectCleaned(getTable(text, 1), DOMCleanType::UUID);
    expectCleaned(getTable(text, 2), DOMCleanType::UUID);
}

TEST(CleanDOMTest, ACellIsCleanedWithItsTables)
{
    for (const DOMCleanType type : NoneAndAll) {
        SCOPED_TRACE(static_cast<unsigned>(type));
        Cell cell;
        fill(cell.getTextWithTombstones());
        cell.getRawBlocks().push_back(makeEditedTable());
        cleanDOM(cell, type);
        EXPECT_FALSE(hasTombstones(cell.getTextWithTombstones()));
        expectCleaned(getTable(cell.getTextWithTombstones(), 1), type);
    }
}

TEST(CleanDOMTest, TablesInTheCellsOfTablesAreCleaned)
{
    for (const DOMCleanType type : NoneAndAll) {
        SCOPED_TRACE(static_cast<unsigned>(type));
        const auto outer = makeEditedTable();
        TextWithTombstones& text = outer->getCell(RowIndex(2), ColumnIndex(1))->getTextWithTombstones();
        text.getBlocks().clear();
        text.getBlocks().push_back(makeEditedTable());
        cleanDOM(*outer, type);
        expectCleaned(getTable(text, 0), type);
        expectCleaned(*outer, type);
    }
}

TEST(CleanDOMTest, EveryChunkIsReached)
{
    Table table = makeGrid(50, 3, 4);
    ASSERT_GT(getChunks(table).size(), 10U);
    for (Cell* const cell : table.getTableIterators()) {
        fill(cell->getTextWithTombstones());
    }
    cleanDOM(table, DOMCleanType::None);
    EXPECT_FALSE(hasTextTombstones(table));
}

TEST(CleanDOMTest, AVectorOfBlocksIsCleanedPastNullBlocks)
{
    for (const DOMCleanType type : NoneAndAll) {
        SCOPED_TRACE(static_cast<unsigned>(type));
        std::vector<std::unique_ptr<Block>> blocks;
        blocks.push_back(nullptr);
        blocks.push_back(makeEditedTable());
        blocks.push_back(nullptr);
        blocks.push_back(makeEditedTable());
        cleanDOM(blocks, type);
        ASSERT_EQ(blocks.size(), 4U);
        expectCleaned(dynamic_cast<Table&>(*blocks[1]), type);
        expectCleaned(dynamic_cast<Table&>(*blocks[3]), type);
        EXPECT_EQ(blocks[0], nullptr);

        blocks.clear();
        cleanDOM(blocks, type);
        EXPECT_TRUE(blocks.empty());
    }
}

TEST(CleanDOMTest, OfBlocksOnlyATableReacts)
{
    for (const DOMCleanType type : NoneAndAll) {
        const std::unique_ptr<Block> table = makeEditedTable();
        cleanDOM(*table, type);
        expectCleaned(dynamic_cast<Table&>(*table), type);
    }

    Shape shape;
    fill(shape.getTextWithTombstones());
    shape.getTextWithTombstones().getBlocks().push_back(makeEditedTable());
    std::vector<std::unique_ptr<Block>> others;
    others.push_back(std::make_unique<Shape>(shape));
    others.push_back(makeParagraph({"text"}));
    others.push_back(std::make_unique<SectionTag>());
    others.push_back(makeNumberBlock(5.0));
    for (const auto& block : others) {
        const auto before = cloneUnique(*block);
        cleanDOM(*block, All);
        EXPECT_TRUE(areDeeplyEqual(*block, *before));
    }
}

TEST(CleanDOMTest, TheTextInShapesKeepsItsTombstones)
{
    auto shape = std::make_unique<Shape>();
    fill(shape->getTextWithTombstones());
    const Shape& kept = *shape;
    TextWithTombstones text;
    text.getBlocks().push_back(std::move(shape));
    cleanDOM(text, All);
    EXPECT_TRUE(hasTombstones(kept.getTextWithTombstones()));
}

TEST(CleanDOMTest, NullCellsOfAFileArePassedOver)
{
    const auto table = makeEditedTable();
    const_cast<TableChunk&>(getChunks(*table)[0]).data[1].cell = nullptr;
    cleanDOM(*table, All);
    EXPECT_FALSE(hasTextTombstones(*table));
    EXPECT_EQ(table->getUUID(), UUID());
}

TEST(CleanDOMTest, APairOfHeaderAndFooterIsCleanedOnBothSides)
{
    for (const DOMCleanType type : NoneAndAll) {
        SCOPED_TRACE(static_cast<unsigned>(type));
        HeaderFooterPair pair;
        for (TextWithTombstones* const text : {&pair.getHeader(), &pair.getFooter()}) {
            fill(*text);
            text->getBlocks().push_back(makeEditedTable());
        }
        cleanDOM(pair, type);
        for (TextWithTombstones* const text : {&pair.getHeader(), &pair.getFooter()}) {
            EXPECT_FALSE(hasTombstones(*text));
            expectCleaned(getTable(*text, 1), type);
        }
    }
}

TEST(CleanDOMTest, ADocumentIsCleanedInItsTextAndItsHeadersAndFooters)
{
    for (const DOMCleanType type : NoneAndAll) {
        SCOPED_TRACE(static_cast<unsigned>(type));
        Document document;
        fill(document.getTextWithTombstones());
        document.getBlocks().push_back(makeEditedTable());
        for (const char digit : {'1', '2'}) {
            HeaderFooterPair& pair = document.getHeadersFooters().insert(HeaderFooterPair(makeUUID(digit)));
            fill(pair.getHeader());
            fill(pair.getFooter());
            pair.getFooter().getBlocks().push_back(makeEditedTable());
        }
        cleanDOM(document, type);
        EXPECT_FALSE(hasTombstones(document.getTextWithTombstones()));
        expectCleaned(getTable(document.getTextWithTombstones(), 1), type);
        EXPECT_EQ(document.getHeadersFooters().size(), 2U);
        for (HeaderFooterPair& pair : document.getHeadersFooters()) {
            EXPECT_FALSE(hasTombstones(pair.getHeader()));
            EXPECT_FALSE(hasTombstones(pair.getFooter()));
            expectCleaned(getTable(pair.getFooter(), 1), type);
        }
    }
}

TEST(CleanDOMTest, CommentsAndNotesAreNotTouched)
{
    Document document;
    document.getComments().insert(Comment(makeUUID('1'))).getBlocks().push_back(makeEditedTable());
    document.getNotes().insert(Note(makeUUID('2'))).getBlocks().push_back(makeEditedTable());
    const Document before = document;
    cleanDOM(document, All);
    EXPECT_TRUE(document == before);
}

TEST(CleanDOMTest, AnEmptyDocumentStaysAsItIs)
{
    Document document;
    const Document before = document;
    cleanDOM(document, All);
    EXPECT_TRUE(document == before);
}

TEST(CleanDOMTest, NestedTablesNeedNoDeepStack)
{
    constexpr int Depth = 3000;
    runOnSmallStack([] {
        auto outermost = std::make_unique<Table>();
        std::vector<Table*> tables = {outermost.get()};
        for (int level = 1; level < Depth; ++level) {
            TextWithTombstones& text =
                tables.back()->getOrCreateCell(RowIndex(0), ColumnIndex(0)).getTextWithTombstones();
            fill(text);
            text.getBlocks().push_back(std::make_unique<Table>());
            tables.push_back(&getTable(text, 1));
        }
        cleanDOM(*outermost, DOMCleanType::UUID);
        for (const Table* const table : tables) {
            EXPECT_EQ(table->getUUID(), UUID());
            EXPECT_FALSE(hasTextTombstones(*table));
        }
        // From the inside out, since destroying them recurses.
        for (; !tables.empty(); tables.pop_back()) {
            tables.back()->removeCell(RowIndex(0), ColumnIndex(0));
        }
    });
}

TEST(CleanDOMTest, AFileWhoseRowsShareTheirCellsTakesNoLongerWhenItIsNested)
{
    Table outermost;
    Table* innermost = &outermost;
    for (int level = 0; level < 100; ++level) {
        TextWithTombstones& text =
            innermost->getOrCreateCell(RowIndex(2), ColumnIndex(0)).getTextWithTombstones();
        text.getBlocks().push_back(std::make_unique<Table>());
        // The first row and the third one have the same cell.
        const_cast<std::vector<std::uint64_t>&>(getOffsets(*innermost, 0)) = {0, 1, 0};
        int visits = 0;
        for (const Cell* const cell : std::as_const(*innermost).getTableIterators()) {
            visits += cell != nullptr ? 1 : 0;
        }
        ASSERT_EQ(visits, 2);
        innermost = &getTable(text, 0);
    }
    cleanDOM(outermost, DOMCleanType::UUID);
    EXPECT_EQ(innermost->getUUID(), UUID());
}

TEST(CleanDOMTest, AFileWhoseRowsShareTheirCellsTakesNoLongerWhenItIsWide)
{
    // A row at a time there were 2,000,000,000 texts to clean.
    constexpr std::size_t Cells = 20000;
    Table table =
        makeDamagedTable(Cells, makeSharedOffsets(Cells, 200000), [] { return makeNumberCell(5.0); });
    for (CellDataByCol& stored : getFirstChunk(table).data) {
        fill(stored.cell->getTextWithTombstones());
    }
    cleanDOM(table, DOMCleanType::None);
    for (const CellDataByCol& stored : getFirstChunk(table).data) {
        ASSERT_FALSE(hasTombstones(stored.cell->getTextWithTombstones()));
    }
}

TEST(CleanDOMTest, CellsOfAFileThatStandBeforeThoseOfEarlierRowsAreCleaned)
{
    Table table = makeDamagedTable(4, {2, 3, 1, 4, 0}, [] { return makeNumberCell(5.0); });
    for (CellDataByCol& stored : getFirstChunk(table).data) {
        stored.colID = ColumnID(1);
        fill(stored.cell->getTextWithTombstones());
    }
    cleanDOM(table, DOMCleanType::None);
    for (const CellDataByCol& stored : getFirstChunk(table).data) {
        EXPECT_FALSE(hasTombstones(stored.cell->getTextWithTombstones()));
    }
}

TEST(CleanDOMDeathTest, APairWithoutItsHeaderOrFooterBreaksTheContract)
{
    const char* const message = "Utils/Public/Ptr/PtrUtils:246: plainPtr\n";
    HeaderFooterPair pair;
    const HeaderFooterPair taken(std::move(pair));
    EXPECT_DEATH(cleanDOM(pair, DOMCleanType::None), message);
    pair.setHeader(TextWithTombstones());
    EXPECT_DEATH(cleanDOM(pair, DOMCleanType::None), message);

    Document document;
    HeaderFooterPair& inDocument = document.getHeadersFooters().insert(HeaderFooterPair(makeUUID('1')));
    const HeaderFooterPair takenFromDocument(std::move(inDocument));
    EXPECT_DEATH(cleanDOM(document, DOMCleanType::None), message);
}

} // namespace

} // namespace QN::DOM::CleanDOMTest
