#include "DOM/Tables/DOM_Cell.h"

#include <gtest/gtest.h>

#include "DOM/DOM_SectionTag.h"
#include "DOM/DOM_TabRun.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::CellTest {
namespace {

using namespace QN::Test;
using CollaborationUtils::IndexIncludingTombstones;
using CollaborationUtils::WithTombstones;

template <class Content>
Cell makeValueCell(Content content)
{
    Cell cell;
    cell.getRawBlocks().push_back(makeFieldBlock(std::move(content)));
    return cell;
}

Cell makeFullCell()
{
    Cell cell;
    cell.getRawBlocks().push_back(makeTextBlock("a"));
    cell.getRawBlocks().push_back(makeNumberBlock(1.0));
    cell.getTextWithTombstones().getTombstones().replaceWithTombstone(IndexIncludingTombstones(1));
    cell.setMergeProps(CellMergeProps(1, 2));
    cell.getSharedStyle() = makeStyle<CellStyle>('1');
    cell.setPivotTable(makePivotTable(2, 1));
    return cell;
}

const std::string EmptyText = R"("_textWithTombstones":{"_blocks":[],"_tombstones":{"_tombstones":[]}})";

TEST(DOM_Cell, IsEmptyByDefault)
{
    const Cell cell;
    EXPECT_TRUE(cell.getRawBlocks().empty());
    EXPECT_EQ(cell.getMergeProps(), CellMergeProps());
    EXPECT_EQ(cell.getSharedStyle(), nullptr);
    EXPECT_TRUE(cell.getStyle().isEmpty());
    EXPECT_EQ(cell.getPivotTable(), nullptr);
    expectText(cell,
               "{" + EmptyText +
                   R"(,"_mergeProps":{"_capturedRowsCount":0,"_capturedColsCount":0},"_style":{"id":0},)"
                   R"("_pivotTable":{"ptr_wrapper":{"valid":0}}})");
}

TEST(DOM_Cell, WritesItsPivotTableAsAPlainPointer)
{
    Cell cell;
    cell.setMergeProps(CellMergeProps(1, 2));
    cell.setPivotTable(makePivotTable(1, 1));
    expectText(cell,
               "{" + EmptyText +
                   R"(,"_mergeProps":{"_capturedRowsCount":1,"_capturedColsCount":2},"_style":{"id":0},)"
                   R"("_pivotTable":{"ptr_wrapper":{"valid":1,"data":)" +
                   toText(*std::as_const(cell).getPivotTable()) + "}}}");
}

TEST(DOM_Cell, PersistsWithEverythingSet)
{
    expectPersists(makeFullCell());
    expectCopiesAndMoves(makeFullCell());
}

TEST(DOM_Cell, CostsNineWords)
{
    EXPECT_EQ(sizeof(Cell), 72U);
}

TEST(DOM_Cell, SharesNothingButItsStyleWithItsCopy)
{
    Cell source = makeFullCell();
    const Cell copy(source);
    EXPECT_EQ(copy, source);
    EXPECT_NE(&copy.getRawBlocks()[0], &std::as_const(source).getRawBlocks()[0]);
    EXPECT_NE(copy.getPivotTable(), std::as_const(source).getPivotTable());
    EXPECT_EQ(copy.getSharedStyle(), source.getSharedStyle());
    source.getPivotTable()->setSize({5, 5});
    EXPECT_NE(copy, source);
}

TEST(DOM_Cell, IsCopiedWithoutItsText)
{
    const Cell source = makeFullCell();
    const Cell copy(source, Cell::CopyStrategy::WithoutText);
    EXPECT_EQ(copy.getTextWithTombstones(), TextWithTombstones());
    EXPECT_EQ(copy.getMergeProps(), source.getMergeProps());
    EXPECT_EQ(copy.getSharedStyle(), source.getSharedStyle());
    EXPECT_EQ(*copy.getPivotTable(), *source.getPivotTable());
    EXPECT_NE(copy.getPivotTable(), source.getPivotTable());
    EXPECT_EQ(Cell(source, Cell::CopyStrategy::Everything), source);
    EXPECT_EQ(static_cast<int>(Cell::CopyStrategy::WithoutText), 1);
}

TEST(DOM_Cell, DiffersByEachOfItsMembers)
{
    const Cell cell = makeFullCell();
    Cell other(cell);
    other.getRawBlocks().pop_back();
    EXPECT_NE(other, cell);
    other = cell;
    other.getTextWithTombstones().getTombstones().clear();
    EXPECT_NE(other, cell);
    other = cell;
    other.setMergeProps(CellMergeProps(1, 3));
    EXPECT_NE(other, cell);
    other = cell;
    other.getSharedStyle() = nullptr;
    EXPECT_NE(other, cell);
    other = cell;
    other.setPivotTable(nullptr);
    EXPECT_NE(other, cell);
}

TEST(DOM_Cell, ComparesItsStyleByValue)
{
    Cell cell = makeFullCell();
    const Cell other(cell);
    cell.getSharedStyle() = makeStyle<CellStyle>('1');
    EXPECT_NE(cell.getSharedStyle(), other.getSharedStyle());
    EXPECT_EQ(cell, other);
    cell.getSharedStyle() = makeStyle<CellStyle>('2');
    EXPECT_NE(cell, other);
}

TEST(DOM_Cell, HoldsTextWhereItHasNoSingleFieldBlock)
{
    Cell cell;
    EXPECT_EQ(cell.getCellData().which(), 0);
    EXPECT_TRUE(cell.getTextBlocks()->empty());
    cell.getRawBlocks().push_back(makeTextBlock("a"));
    EXPECT_EQ(cell.getCellData().which(), 0);
    cell.getRawBlocks().push_back(makeNumberBlock(1.0));
    EXPECT_EQ(cell.getCellData().which(), 0);
    EXPECT_EQ(cell.getTextBlocks()->size(), 2U);
    EXPECT_EQ(cell.getNumberValue(), nullptr);
    EXPECT_FALSE(cell.containsFormulaOrValue());
    EXPECT_FALSE(cell.containsFormulaVariant());
}

TEST(DOM_Cell, HoldsTextWhereItsFieldBlockHoldsATableOfContents)
{
    const Cell cell = makeValueCell(TableOfContentsInfo());
    EXPECT_EQ(cell.getCellData().which(), 0);
    EXPECT_EQ(cell.getTextBlocks()->size(), 1U);
    EXPECT_FALSE(cell.containsFormulaOrValue());
}

/// Only the accessor of the given alternative answers.
void expectData(const Cell& cell, int which, bool isFormulaVariant)
{
    EXPECT_EQ(cell.getCellData().which(), which);
    EXPECT_FALSE(cell.getTextBlocks());
    EXPECT_EQ(cell.getFormula() != nullptr, which == 1);
    EXPECT_EQ(cell.getArrayFormulaShift() != nullptr, which == 2);
    EXPECT_EQ(cell.getNumberValue() != nullptr, which == 3);
    EXPECT_EQ(cell.getErrorValue() != nullptr, which == 4);
    EXPECT_EQ(cell.getBoolValue() != nullptr, which == 5);
    EXPECT_EQ(cell.containsFormulaVariant(), isFormulaVariant);
    EXPECT_TRUE(cell.containsFormulaOrValue());
    EXPECT_EQ(cell.getRawBlocks().size(), 1U);
}

TEST(DOM_Cell, HoldsWhatItsSingleFieldBlockHolds)
{
    expectData(makeValueCell(Formula()), 1, true);
    expectData(makeValueCell(ArrayFormulaShift(1, 2)), 2, true);
    expectData(makeValueCell(BlockValue<FloatNumber>(FloatNumber(1.5))), 3, false);
    expectData(makeValueCell(BlockValue<FormulaErrorType>(static_cast<FormulaErrorType>(7))), 4, false);
    expectData(makeValueCell(BlockValue<bool>(true)), 5, false);
}

TEST(DOM_Cell, AnswersItsValues)
{
    EXPECT_EQ(makeValueCell(BlockValue<FloatNumber>(FloatNumber(1.5))).getNumberValue()->get(),
              FloatNumber(1.5));
    EXPECT_TRUE(makeValueCell(BlockValue<bool>(true)).getBoolValue()->get());
    EXPECT_EQ(
        makeValueCell(BlockValue<FormulaErrorType>(static_cast<FormulaErrorType>(7))).getErrorValue()->get(),
        static_cast<FormulaErrorType>(7));
    EXPECT_EQ(makeValueCell(ArrayFormulaShift(1, 2)).getArrayFormulaShift()->getColumnsCount(), 2U);
}

TEST(DOM_Cell, IsTheRootOfAnArrayFormulaByItsSize)
{
    Formula formula;
    EXPECT_FALSE(makeValueCell(formula).containsArrayFormula());
    formula.setArrayFormulaSize(Size2D<unsigned long>(2, 2));
    EXPECT_TRUE(makeValueCell(formula).containsArrayFormula());
    EXPECT_FALSE(makeValueCell(ArrayFormulaShift(1, 2)).containsArrayFormula());
    EXPECT_FALSE(Cell().containsArrayFormula());
}

TEST(DOM_CellDeathTest, CannotTellWhatANullBlockIs)
{
    Cell cell;
    cell.getRawBlocks().push_back(nullptr);
    EXPECT_DEATH(cell.getCellData(), "plainPtr");
    EXPECT_EQ(Cell(cell), cell);
}

TEST(DOM_Cell, CountsTombstonesAsContentWhenAskedTo)
{
    Cell cell;
    EXPECT_TRUE(cell.isContentEmpty(WithTombstones::Yes));
    cell.getTextWithTombstones().getTombstones().replaceWithTombstone(IndexIncludingTombstones(0));
    EXPECT_TRUE(cell.isContentEmpty(WithTombstones::No));
    EXPECT_FALSE(cell.isContentEmpty(WithTombstones::Yes));
    EXPECT_TRUE(cell.isEmpty(WithTombstones::No));
    EXPECT_FALSE(cell.isEmpty(WithTombstones::Yes));
    cell.getRawBlocks().push_back(makeTextBlock("a"));
    EXPECT_FALSE(cell.isContentEmpty(WithTombstones::No));
}

TEST(DOM_Cell, IsNotEmptyWithAStyleOrMergePropsAlone)
{
    Cell cell;
    EXPECT_TRUE(cell.isEmpty(WithTombstones::Yes));
    cell.setMergeProps(CellMergeProps(0, 1));
    EXPECT_FALSE(cell.isEmpty(WithTombstones::Yes));
    EXPECT_TRUE(cell.isContentEmpty(WithTombstones::Yes));
    cell.setMergeProps(CellMergeProps());
    cell.getSharedStyle() = makeStyle<CellStyle>('1');
    EXPECT_FALSE(cell.isEmpty(WithTombstones::Yes));
}

TEST(DOM_Cell, IsNotEmptyWithAHandleToAnEmptyStyle)
{
    Cell cell;
    cell.getSharedStyle() = SharedObjectFactory().create(CellStyle());
    ASSERT_NE(cell.getSharedStyle(), nullptr);
    EXPECT_FALSE(cell.isEmpty(WithTombstones::Yes));
}

TEST(DOM_Cell, IsEmptyWithAPivotTableAlone)
{
    Cell cell;
    cell.setPivotTable(makePivotTable(1, 1));
    EXPECT_TRUE(cell.isEmpty(WithTombstones::Yes));
}

SharedStylePtr<RunStyle> makeLinkStyle(const std::string& url)
{
    RunStyle style;
    style.setHyperlink(std::make_shared<const Hyperlink>(url));
    return SharedObjectFactory().create(std::move(style));
}

TEST(DOM_Cell, HasTheHyperlinkOfItsFirstBlock)
{
    Cell cell;
    EXPECT_EQ(cell.getHyperlink(), nullptr);

    auto block = makeNumberBlock(1.0);
    block->setHyperlink(std::make_shared<const Hyperlink>("field"));
    cell.getRawBlocks().push_back(std::move(block));
    EXPECT_EQ(cell.getHyperlink()->getURL(), "field");

    cell.getRawBlocks().insert(cell.getRawBlocks().begin(), makeTextBlock("a"));
    EXPECT_EQ(cell.getHyperlink(), nullptr);
}

TEST(DOM_Cell, HasTheHyperlinkOfTheFirstRunOrElseOfTheParagraphMark)
{
    Cell cell;
    auto paragraph = std::make_unique<Paragraph>();
    paragraph->getSharedParaMarkStyle() = makeLinkStyle("mark");
    Paragraph& text = *paragraph;
    cell.getRawBlocks().push_back(std::move(paragraph));
    EXPECT_EQ(cell.getHyperlink()->getURL(), "mark");

    text.getRuns().push_back(std::make_unique<TabRun>());
    EXPECT_EQ(cell.getHyperlink(), nullptr);
    text.getRuns().front()->getSharedStyle() = makeLinkStyle("run");
    EXPECT_EQ(cell.getHyperlink()->getURL(), "run");
}

TEST(DOM_CellDeathTest, HasNoHyperlinkOfABlockOfAnotherKind)
{
    Cell cell;
    cell.getRawBlocks().push_back(std::make_unique<SectionTag>());
    EXPECT_DEATH(cell.getHyperlink(), "Utils/Public/Visitor:194: result");
}

TEST(DOM_GetCellMergeProps, AreDefaultsForAMissingCell)
{
    EXPECT_EQ(getCellMergeProps(nullptr), CellMergeProps());
    const Cell cell = makeFullCell();
    EXPECT_EQ(&getCellMergeProps(&cell), &cell.getMergeProps());
}

} // namespace
} // namespace QN::DOM::CellTest
