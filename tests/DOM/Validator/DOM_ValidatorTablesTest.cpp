#include <gtest/gtest.h>

#include "DOM/Validator/DOM_Validator.h"
#include "DOM/Validator/TableFaults.h"

/// The rules of tables and their cells.

namespace QN::DOM::ValidatorTablesTest {
namespace {

using namespace Test;

// Names

TEST(ValidatorTablesTest, TheNameOfATableIsLegal)
{
    const auto rename = [](std::string name) {
        return Fault{[name](Document& document) {
                         getSheet(document).setName(name);
                         return SheetAddress;
                     },
                     "Invalid table name '" + name + "'."};
    };
    expectRule(makeValidatorRule(86, "validateTableName(tableName)"),
               [] {
                   Document document = makeSheetDocument();
                   Body.put(document, makeSheet(""));
                   Body.put(document, makeSheet("It's {0}"));
                   return document;
               },
               {rename("a:b"), rename("'quoted"), rename("quoted'"), rename("a[1]"), rename("what?"),
                rename("{}/{}")});
}

TEST(ValidatorTablesTest, NoTwoTablesHaveOneName)
{
    const auto add = [](const Place& place, std::string name) {
        return Fault{[place, name](Document& document) { return place.put(document, makeSheet(name)); },
                     "Duplicate table name '" + name + "'."};
    };
    expectRule(makeValidatorRule(89, "_tableNames.find(tableName) == _tableNames.end()"),
               [] {
                   Document document = makeSheetDocument();
                   Body.put(document, makeSheet("sheet"));
                   Body.put(document, makeSheet(""));
                   return document;
               },
               {add(Body, "Sheet"), add(InCell, "Sheet"), add(InShape, "sheet"), add(InHeader, "Sheet"),
                add(InFooter, ""), add(Body, "")});
}

// Filters

Fault makeFilterFault(const TableRange& range, std::size_t findings = 1)
{
    return {[range](Document& document) {
                getSheet(document).setFilterInfo(TableFilterInfo(range));
                return SheetAddress;
            },
            "", findings};
}

Document makeFilteredDocument()
{
    Document document = makeSheetDocument();
    getSheet(document).setFilterInfo(TableFilterInfo(makeRange(0, 3, 0, 3)));
    return document;
}

TEST(ValidatorTablesTest, AFilterStandsInLiveRows)
{
    expectRule(makeValidatorRule(
                   97, "table.getLiveRowsCount().get() > filterInfo->getFilterRange().getLastRow().get()"),
               makeFilteredDocument,
               {makeFilterFault(makeRange(0, 4, 0, 3)),
                makeFilterFault(makeRange(2, 1048576, 0, 1)),
                makeFilterFault(makeRange(3, 5, 2, 3)),
                {[](Document& document) {
                     getSheet(document).setFilterInfo(TableFilterInfo());
                     return SheetAddress;
                 },
                 "", 2}});
}

TEST(ValidatorTablesTest, AFilterStandsInLiveColumns)
{
    expectRule(makeValidatorRule(
                   98, "table.getLiveColsCount().get() > filterInfo->getFilterRange().getLastColumn().get()"),
               makeFilteredDocument,
               {makeFilterFault(makeRange(0, 3, 0, 4)), makeFilterFault(makeRange(0, 2, 2, 16384)),
                makeFilterFault(makeRange(1, 3, 3, 4))});
}

// Merged cells

/// The cells (1, 1), (1, 2), (2, 1) and (2, 2) are one.
Document makeMergedDocument()
{
    Document document = makeSheetDocument();
    for (const auto& [row, column] : {std::pair(1, 2), std::pair(2, 1), std::pair(2, 2)}) {
        getSheet(document).removeCell(RowIndex(static_cast<std::uint64_t>(row)),
                                      ColumnIndex(static_cast<std::uint64_t>(column)));
    }
    getSheet(document).getOrCreateCell(RowIndex(2), ColumnIndex(2));
    getSheet(document).setMergeProps(RowIndex(1), ColumnIndex(1), 1, 1);
    return document;
}

TEST(ValidatorTablesTest, AMergedCellIsEmptyUnlessItIsTheRoot)
{
    expectRule(makeValidatorRule(118, "Non root merged cell is not empty."), makeMergedDocument,
               {{[](Document& document) {
                    setNumber(getSheet(document), 1, 2, 5);
                    return getCellAddress(1, 2);
                }},
                {[](Document& document) {
                    getCell(document, 2, 1).getRawBlocks().push_back(makeParagraph({"text"}));
                    return getCellAddress(2, 1);
                }},
                {[](Document& document) {
                    getCell(document, 2, 2).getRawBlocks().push_back(std::make_unique<Paragraph>());
                    return getCellAddress(2, 2);
                }},
                {[](Document& document) {
                    getCell(document, 2, 2).getSharedStyle() = makeEmptySharedStyle<CellStyle>();
                    return getCellAddress(2, 2);
                }}});
}

TEST(ValidatorTablesTest, TombstonesDoNotFillAMergedCell)
{
    Document document = makeMergedDocument();
    getCell(document, 2, 2)
        .getTextWithTombstones()
        .getTombstones()
        .replaceWithTombstone(CollaborationUtils::IndexIncludingTombstones(0));
    expectValid(document);
}

TEST(ValidatorTablesTest, AMergedRangeDoesNotStickOutOfTheFilter)
{
    const auto filter = [](const TableRange& range, const std::string& address, std::size_t findings) {
        return Fault{[=](Document& document) {
                         getSheet(document).setFilterInfo(TableFilterInfo(range));
                         return address;
                     },
                     "", findings};
    };
    // Two of the cells of the merged range are stored: (1, 1) and (2, 2).
    expectRule(makeValidatorRule(126, "Merged range intersects with filter range"),
               [] {
                   Document document = makeMergedDocument();
                   getSheet(document).setFilterInfo(TableFilterInfo(makeRange(1, 3, 0, 3)));
                   return document;
               },
               {filter(makeRange(0, 2, 0, 3), getCellAddress(1, 1), 2),
                filter(makeRange(0, 3, 0, 2), getCellAddress(1, 1), 2),
                filter(makeRange(0, 3, 2, 3), getCellAddress(1, 1), 2),
                {[](Document& document) {
                    getSheet(document).setFilterInfo(TableFilterInfo(makeRange(0, 2, 1, 3)));
                    getSheet(document).removeCell(RowIndex(2), ColumnIndex(2));
                    return getCellAddress(1, 1);
                }}});
}

TEST(ValidatorTablesTest, AMergedRangeOutsideTheFilterIsNoConcernOfIt)
{
    Document document = makeMergedDocument();
    getSheet(document).setFilterInfo(TableFilterInfo(makeRange(0, 3, 0, 1)));
    expectValid(document);
}

// Pivot tables

/// An area of 2 rows and 3 columns at (1, 0).
Document makePivotDocument()
{
    Document document = makeSheetDocument();
    getSheet(document).setPivotTable(RowIndex(1), ColumnIndex(0), makePivotTable(3, 2));
    return document;
}

TEST(ValidatorTablesTest, APivotTableIsKnownToTheTable)
{
    const auto add = [](std::uint64_t row, std::uint64_t column) {
        return Fault{[=](Document& document) {
            getCell(document, row, column).setPivotTable(makePivotTable(1, 1));
            return getCellAddress(row, column);
        }};
    };
    expectRule(makeValidatorRule(138, "Pivot tables cache doesn't contain valid pivot table info"),
               makePivotDocument, {add(0, 0), add(1, 1), add(2, 2), {[](Document& document) {
                                       Table& table = getSheet(document);
                                       getMember<PivotTablesCache>(table, "_pivotTablesCache") =
                                           PivotTablesCache();
                                       return getCellAddress(1, 0);
                                   }}});
}

TEST(ValidatorTablesTest, AnAreaHoldsAPivotTableOfItsSize)
{
    const auto resize = [](unsigned int columns, unsigned int rows) {
        return Fault{[=](Document& document) {
            getCell(document, 1, 0).getPivotTable()->setSize({columns, rows});
            return getCellAddress(1, 0);
        }};
    };
    expectRule(makeValidatorRule(151, "Pivot tables cache contains invalid range"), makePivotDocument,
               {resize(3, 1),
                resize(2, 3),
                resize(4, 2),
                resize(0, 0),
                {[](Document& document) {
                    getCell(document, 1, 0).setPivotTable(nullptr);
                    return getCellAddress(1, 0);
                }},
                {[](Document& document) {
                    Table& table = getSheet(document);
                    getMember<PivotTablesCache>(table, "_pivotTablesCache")
                        .addPivot(RowIndex(0), ColumnIndex(1), {2, 1});
                    return getCellAddress(0, 1);
                }},
                {[](Document& document) {
                    getCell(document, 1, 0) = Cell();
                    return getCellAddress(1, 0);
                }}});
}

TEST(ValidatorTablesTest, AnAreaWhoseRootIsNotStoredIsToldAtItsFirstStoredCell)
{
    Document document = makePivotDocument();
    Table& table = getSheet(document);
    const auto cache = getMember<PivotTablesCache>(table, "_pivotTablesCache");
    table.removeCell(RowIndex(1), ColumnIndex(0));
    getMember<PivotTablesCache>(table, "_pivotTablesCache") = cache;
    const auto findings = Validator::collectFindings(document);
    ASSERT_EQ(findings.size(), 1U) << getTexts(findings);
    EXPECT_EQ(findings[0].line, 151);
    EXPECT_EQ(findings[0].getAddress().toString(), getCellAddress(1, 1));
    expectBothWaysAgree(document);
}

// Cells

TEST(ValidatorTablesTest, ACellWithAFormulaOrAValueHasOneBlock)
{
    const auto add = [](std::uint64_t row, std::unique_ptr<Block> (*makeBlock)(), bool atFront) {
        return Fault{[=](Document& document) {
            auto& blocks = getCell(document, row, 1).getRawBlocks();
            blocks.insert(atFront ? blocks.begin() : blocks.end(), makeBlock());
            return getCellAddress(row, 1);
        }};
    };
    const auto makeText = []() -> std::unique_ptr<Block> { return makeParagraph({"text"}); };
    const auto makeFormula = []() -> std::unique_ptr<Block> { return std::make_unique<FieldBlock>(); };
    const auto makeValue = []() -> std::unique_ptr<Block> { return makeFieldBlock(BlockValue<bool>(true)); };
    expectRule(makeValidatorRule(235, "cell.getRawBlocks().size() == 1u"),
               [] {
                   Document document = makeSheetDocument();
                   auto& texts = getCell(document, 0, 0).getRawBlocks();
                   texts.clear();
                   texts.push_back(makeParagraph({"one"}));
                   texts.push_back(makeFieldBlock(TableOfContentsInfo()));
                   texts.push_back(makeParagraph({"two"}));
                   return document;
               },
               {add(0, makeText, true),
                add(1, makeText, false),
                add(2, makeFormula, true),
                add(0, makeValue, false),
                {[](Document& document) {
                    getCell(document, 0, 0).getRawBlocks().push_back(makeFieldBlock(ArrayFormulaShift()));
                    return getCellAddress(0, 0);
                }}});
}

TEST(ValidatorTablesTest, NoStoredCellIsNull)
{
    const auto setNull = [](std::uint64_t row, std::uint64_t column) {
        return Fault{[=](Document& document) {
            getSheet(document).setCell(RowIndex(row), ColumnIndex(column), nullptr);
            return getCellAddress(row, column);
        }};
    };
    expectRule(NullPointerRule,
               [] {
                   Document document;
                   auto table = std::make_unique<Table>(RowIndex(5), ColumnIndex(5));
                   table->setName("Empty");
                   document.getBlocks().push_back(std::move(table));
                   return document;
               },
               {setNull(0, 0), setNull(4, 4), setNull(2, 3)});
}

TEST(ValidatorTablesTest, ANullBlockBesideAValueBreaksTwoRules)
{
    Document document = makeSheetDocument();
    auto& blocks = getCell(document, 1, 1).getRawBlocks();
    blocks.insert(blocks.begin(), nullptr);
    const auto findings = Validator::collectFindings(document);
    ASSERT_EQ(findings.size(), 2U) << getTexts(findings);
    EXPECT_EQ(findings[0].condition, "plainPtr");
    EXPECT_EQ(findings[0].getAddress().toString(), getCellAddress(1, 1) + "/blocks[0]");
    EXPECT_EQ(findings[1].line, 235);
    EXPECT_EQ(findings[1].getAddress().toString(), getCellAddress(1, 1));
    expectBothWaysAgree(document);
}

TEST(ValidatorTablesTest, TheCellsOfAllChunksAreValidated)
{
    Document document;
    document.getBlocks().push_back(std::make_unique<Table>(makeGrid(9, 9, 4)));
    expectValid(document);
    std::string addresses;
    for (std::uint64_t row = 0; row < 9; ++row) {
        getCell(document, row, row).getRawBlocks().push_back(nullptr);
        addresses += getCellAddress(row, row) + "/blocks[1]\n" + getCellAddress(row, row) + "\n";
    }
    std::string found;
    for (const Finding& finding : Validator::collectFindings(document)) {
        found += finding.getAddress().toString() + "\n";
    }
    EXPECT_EQ(found, addresses);
}

TEST(ValidatorTablesTest, ATableInACellIsValidatedAsAnyOther)
{
    Document document = makeSheetDocument();
    auto inner = makeSheet("Inner");
    getCell(document, 1, 1).getRawBlocks().clear();
    inner->getOrCreateCell(RowIndex(0), ColumnIndex(2)).getRawBlocks().push_back(makeParagraph({""}));
    getCell(document, 1, 1).getRawBlocks().push_back(std::move(inner));
    const auto findings = Validator::collectFindings(document);
    ASSERT_EQ(findings.size(), 2U) << getTexts(findings);
    EXPECT_EQ(findings[0].toString(), "DOM/Validator/DOM_Validator:71: TextRun is empty. at "
                                      "blocks[0]/cell(1, 1)/blocks[0]/cell(0, 2)/blocks[1]/runs[0]");
    EXPECT_EQ(findings[1].toString(), "DOM/Validator/DOM_Validator:235: cell.getRawBlocks().size() == 1u at "
                                      "blocks[0]/cell(1, 1)/blocks[0]/cell(0, 2)");
}

} // namespace
} // namespace QN::DOM::ValidatorTablesTest
