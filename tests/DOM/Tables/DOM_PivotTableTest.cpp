#include "DOM/Tables/DOM_PivotTable.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::PivotTableTest {
namespace {

using namespace QN::Test;

constexpr ColumnID Region(3);
constexpr ColumnID Sales(5);
constexpr ColumnID Unknown(8);

PivotTable makePivot()
{
    PivotTable pivot;
    pivot.setPivotTableFields({PivotTableField(Region, "Region"), PivotTableField(Sales, "Sales")});
    return pivot;
}

PivotTableValue makeValue(std::unique_ptr<Block> block)
{
    PivotTableValue value;
    value.getBlocks().push_back(std::move(block));
    return value;
}

TEST(DOM_PivotTable, IsEmptyByDefault)
{
    const PivotTable pivot;
    EXPECT_TRUE(pivot.getRows().empty());
    EXPECT_TRUE(pivot.getColumns().empty());
    EXPECT_TRUE(pivot.getValues().empty());
    EXPECT_TRUE(pivot.getPivotTableFields().empty());
    EXPECT_EQ(static_cast<int>(pivot.getLayoutType()), 0);
    EXPECT_EQ(pivot.getSize(), (Size2D<unsigned int>(0, 0)));
    EXPECT_EQ(pivot.getSourceRange(), FormulaSyntaxTree::CellRange());
    EXPECT_FALSE(pivot.isError());
}

TEST(DOM_PivotTable, WritesItsIdentityAndThenItsMembers)
{
    PivotTable pivot;
    pivot.setUUID(UUID());
    pivot.getFieldCache().setUUID(UUID());
    const std::string nil = R"({"_uuid":{"_id":"00000000-0000-0000-0000-000000000000"}})";
    expectText(pivot, R"({"value0":)" + nil + R"(,"_range":)" + toText(FormulaSyntaxTree::CellRange()) +
                          R"(,"_rows":[],"_columns":[],"_values":[],"_fields":[],"_fieldCache":{"value0":)" +
                          nil +
                          R"(,"_fieldValueCache":[]},"_layoutType":0,"_calculatedValues":[],)"
                          R"("_size":{"_width":0,"_height":0}})");
}

TEST(DOM_PivotTable, PersistsWithEverythingSet)
{
    PivotTable pivot = makePivot();
    pivot.setSourceRange(FormulaSyntaxTree::CellRange("doc", std::string("Sheet"), std::string("Sheet"),
                                                      FormulaSyntaxTree::ColumnAxis(Region, true)));
    pivot.addRow(Region, PivotTableSortOrder::Ascending, false);
    pivot.addColumn(Sales, PivotTableSortOrder::Descending, true);
    pivot.addCalculatingValue(Sales, PivotTableFunction::Max);
    pivot.getFieldCache().addValue(Region, "North");
    pivot.setLayoutType(PivotTableLayoutType::Tabular);
    pivot.setSize({2, 1});
    pivot.setValue(0, 1, makeValue(makeNumberBlock(1.5)));
    expectPersists(pivot);
    expectCopiesAndMoves(pivot);
    EXPECT_EQ(pivot.getLayoutType(), PivotTableLayoutType::Tabular);
}

TEST(DOM_PivotTable, HasAnIdentityThatTakesPartInEquality)
{
    PivotTable one = makePivot();
    PivotTable other(one);
    EXPECT_EQ(one, other);
    other.setUUID(UUID());
    EXPECT_NE(one, other);
}

TEST(DOM_PivotTable, DiffersByEachOfItsMembers)
{
    const PivotTable pivot = makePivot();
    const auto expectDiffers = [&](auto change) {
        PivotTable changed(pivot);
        change(changed);
        EXPECT_NE(changed, pivot);
    };
    expectDiffers([](PivotTable& changed) {
        changed.setSourceRange(FormulaSyntaxTree::CellRange("doc", std::string(), std::string(),
                                                            FormulaSyntaxTree::ColumnAxis(Region, true)));
    });
    expectDiffers([](PivotTable& changed) { changed.addRow(Region, PivotTableSortOrder::Manual, true); });
    expectDiffers([](PivotTable& changed) { changed.addColumn(Region, PivotTableSortOrder::Manual, true); });
    expectDiffers([](PivotTable& changed) { changed.addCalculatingValue(Sales, PivotTableFunction::Sum); });
    expectDiffers([](PivotTable& changed) { changed.setPivotTableFields({}); });
    expectDiffers([](PivotTable& changed) { changed.getFieldCache().addValue(Region, "North"); });
    expectDiffers([](PivotTable& changed) { changed.setFieldCache(FieldCache()); });
    expectDiffers([](PivotTable& changed) { changed.setLayoutType(PivotTableLayoutType::Outline); });
    expectDiffers([](PivotTable& changed) { changed.setSize({1, 1}); });
    expectDiffers([](PivotTable& changed) { changed.setSize({0, 1}); });
}

TEST(DOM_PivotTable, PassesUnknownLayoutsThrough)
{
    PivotTable pivot;
    pivot.setLayoutType(static_cast<PivotTableLayoutType>(2147483647));
    EXPECT_NE(toText(pivot).find(R"("_layoutType":2147483647,)"), std::string::npos);
    EXPECT_EQ(fromText<PivotTable>(toText(pivot)), pivot);
}

TEST(DOM_PivotTable, TakesACacheOfFieldValues)
{
    FieldCache cache;
    cache.addValue(Region, "North");
    PivotTable pivot = makePivot();
    pivot.setFieldCache(cache);
    EXPECT_EQ(std::as_const(pivot).getFieldCache(), cache);
    EXPECT_EQ(pivot.getFieldCache().getValues(Sales), nullptr);
}

TEST(DOM_PivotTable, FindsItsFieldsByIdentifier)
{
    PivotTable pivot = makePivot();
    EXPECT_EQ(pivot.getFieldByID(Sales)->getFieldName(), "Sales");
    EXPECT_EQ(pivot.getFieldByID(Unknown), nullptr);
    EXPECT_TRUE(pivot.isValidFieldID(Region));
    EXPECT_FALSE(pivot.isValidFieldID(Unknown));
}

TEST(DOM_PivotTable, GivesAnAliasToAKnownFieldAlone)
{
    PivotTable pivot = makePivot();
    pivot.setPivotTableFieldNameAlias(Sales, "Total");
    EXPECT_EQ(pivot.getFieldByID(Sales)->getAliasOrName(), "Total");
    const PivotTable before = pivot;
    pivot.setPivotTableFieldNameAlias(Unknown, "x");
    EXPECT_EQ(pivot, before);
}

TEST(DOM_PivotTable, TakesAFieldToRowsOrColumnsOnce)
{
    PivotTable pivot = makePivot();
    EXPECT_TRUE(pivot.canInsertFieldToRowsOrColumns(Region));
    EXPECT_FALSE(pivot.canInsertFieldToRowsOrColumns(Unknown));
    pivot.addRow(Region, PivotTableSortOrder::Ascending, true);
    EXPECT_FALSE(pivot.canInsertFieldToRowsOrColumns(Region));
    EXPECT_TRUE(pivot.canInsertFieldToRowsOrColumns(Sales));
    pivot.addColumn(Sales, PivotTableSortOrder::Ascending, true);
    EXPECT_FALSE(pivot.canInsertFieldToRowsOrColumns(Sales));
    pivot.removeRow(Region);
    EXPECT_TRUE(pivot.canInsertFieldToRowsOrColumns(Region));
}

TEST(DOM_PivotTable, RemovesEveryEntryOfAFieldAndKeepsTheOrderOfTheRest)
{
    PivotTable pivot = makePivot();
    for (const ColumnID id : {Unknown, Region, Sales, Region}) {
        pivot.addRow(id, PivotTableSortOrder::Ascending, false);
        pivot.addColumn(id, PivotTableSortOrder::Descending, true);
    }
    pivot.removeRow(Region);
    EXPECT_EQ(pivot.getRows(),
              (PivotTable::Categories{PivotTableCategoryInfo(Unknown, PivotTableSortOrder::Ascending, false),
                                      PivotTableCategoryInfo(Sales, PivotTableSortOrder::Ascending, false)}));
    EXPECT_EQ(pivot.getColumns().size(), 4U);
    pivot.removeColumn(Unknown);
    EXPECT_EQ(pivot.getColumns().size(), 3U);
    EXPECT_EQ(pivot.getColumns()[1].getFieldID(), Sales);
}

TEST(DOM_PivotTable, RemovesAValueByItsIdentity)
{
    PivotTable pivot = makePivot();
    pivot.addCalculatingValue(Sales, PivotTableFunction::Sum);
    pivot.addCalculatingValue(Sales, PivotTableFunction::Sum);
    const UUID first = pivot.getValues()[0].getUUID();
    const UUID second = pivot.getValues()[1].getUUID();
    pivot.removeValue(UUID());
    EXPECT_EQ(pivot.getValues().size(), 2U);
    pivot.removeValue(first);
    ASSERT_EQ(pivot.getValues().size(), 1U);
    EXPECT_EQ(pivot.getValues()[0].getUUID(), second);
}

TEST(DOM_PivotTable, AddressesItsResultsRowByRow)
{
    PivotTable pivot;
    pivot.setSize({3, 2});
    pivot.setValue(1, 2, makeValue(makeNumberBlock(12.0)));
    pivot.setValue(0, 1, makeValue(makeNumberBlock(1.0)));
    EXPECT_EQ(pivot.getValue(1, 2), makeValue(makeNumberBlock(12.0)));
    EXPECT_EQ(pivot.getValue(0, 1), makeValue(makeNumberBlock(1.0)));
    EXPECT_EQ(pivot.getValue(1, 1), PivotTableValue());
    EXPECT_EQ(pivot.getValue(0, 5), makeValue(makeNumberBlock(12.0)));
}

TEST(DOM_PivotTable, ThrowsForAResultPastTheLast)
{
    PivotTable pivot;
    EXPECT_THROW(pivot.getValue(0, 0), std::out_of_range);
    pivot.setSize({3, 2});
    EXPECT_THROW(pivot.getValue(2, 0), std::out_of_range);
    EXPECT_THROW(pivot.getValue(1, 3), std::out_of_range);
    EXPECT_THROW(pivot.setValue(2, 0, PivotTableValue()), std::out_of_range);
    EXPECT_THROW(pivot.getValue(1431655766, 0), std::out_of_range);
}

TEST(DOM_PivotTable, HasEmptyResultsAfterItsSizeWasSet)
{
    PivotTable pivot;
    pivot.setSize({1, 1});
    pivot.setValue(0, 0, makeValue(makeNumberBlock(12.0)));
    pivot.setSize({2, 2});
    EXPECT_EQ(pivot.getSize(), (Size2D<unsigned int>(2, 2)));
    EXPECT_EQ(pivot.getValue(0, 0), PivotTableValue());
    EXPECT_EQ(pivot.getValue(1, 1), PivotTableValue());
}

TEST(DOM_PivotTable, RefusesASizeThatNoVectorHoldsAndKeepsItsResults)
{
    constexpr unsigned int Largest = 4294967295U;
    PivotTable pivot;
    pivot.setSize({1, 1});
    pivot.setValue(0, 0, makeValue(makeNumberBlock(12.0)));
    EXPECT_THROW(pivot.setSize({Largest, Largest}), std::length_error);
    EXPECT_EQ(pivot.getSize(), (Size2D<unsigned int>(1, 1)));
    EXPECT_EQ(pivot.getValue(0, 0), makeValue(makeNumberBlock(12.0)));
}

TEST(DOM_PivotTable, LoadsAsManyResultsAsAFileHasWhateverItsSize)
{
    PivotTable pivot;
    pivot.setSize({2, 1});
    std::string text = toText(pivot);
    const std::string size = R"("_size":{"_width":2,"_height":1})";
    ASSERT_NE(text.find(size), std::string::npos);
    text.replace(text.find(size), size.size(), R"("_size":{"_width":1,"_height":1})");
    EXPECT_EQ(fromText<PivotTable>(text).getValue(1, 0), PivotTableValue());

    const std::string results =
        R"("_calculatedValues":[{"_blocks":[],"_style":{"id":0}},{"_blocks":[],"_style":{"id":0}}])";
    ASSERT_NE(text.find(results), std::string::npos);
    text.replace(text.find(results), results.size(), R"("_calculatedValues":[])");
    const auto loaded = fromText<PivotTable>(text);
    EXPECT_THROW(loaded.getValue(0, 0), std::out_of_range);
    EXPECT_THROW(loaded.isError(), std::out_of_range);
}

TEST(DOM_PivotTable, IsAnErrorWhenItsOneResultIsAnErrorValue)
{
    PivotTable pivot;
    pivot.setSize({1, 1});
    pivot.setValue(0, 0, makeValue(makeNumberBlock(12.0)));
    EXPECT_FALSE(pivot.isError());
    const BlockValue<FormulaErrorType> error(static_cast<FormulaErrorType>(3));
    pivot.setValue(0, 0, makeValue(makeFieldBlock(error)));
    EXPECT_TRUE(pivot.isError());
    PivotTableValue two = makeValue(makeFieldBlock(error));
    two.getBlocks().push_back(makeFieldBlock(error));
    pivot.setValue(0, 0, std::move(two));
    EXPECT_FALSE(pivot.isError());
    pivot.setValue(0, 0, makeValue(makeTextBlock("x")));
    EXPECT_FALSE(pivot.isError());
    pivot.setSize({2, 1});
    pivot.setValue(0, 0, makeValue(makeFieldBlock(error)));
    EXPECT_FALSE(pivot.isError());
}

TEST(DOM_PivotTableDeathTest, IsAskedForAnErrorOnlyOnceItsOneResultHasABlock)
{
    PivotTable pivot;
    pivot.setSize({1, 1});
    EXPECT_DEATH(pivot.isError(), R"(ReadonlyVector:449: index < size\(\))");
    pivot.setValue(0, 0, makeValue(nullptr));
    EXPECT_DEATH(pivot.isError(), "Utils/Public/Ptr/PtrUtils:254: plainPtr");
}

} // namespace
} // namespace QN::DOM::PivotTableTest
