#include <gtest/gtest.h>

#include "DOM/Properties/DOM_SharedObjectFactory.h"
#include "DOM/Tables/DOM_PivotTableCategoryInfo.h"
#include "DOM/Tables/DOM_PivotTableField.h"
#include "DOM/Tables/DOM_PivotTableValue.h"
#include "DOM/Tables/DOM_ValueField.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/Tables/TableSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::PivotTablePartsTest {
namespace {

using namespace QN::Test;

TEST(DOM_PivotTableCategoryInfo, ShowsTotalsByDefault)
{
    expectText(PivotTableCategoryInfo(), R"({"_fieldID":{"_value":0},"_sortOrder":0,"_showTotals":true})");
}

TEST(DOM_PivotTableCategoryInfo, WritesAllThatItHolds)
{
    PivotTableCategoryInfo info(ColumnID(7), PivotTableSortOrder::Descending, false);
    expectText(info, R"({"_fieldID":{"_value":7},"_sortOrder":2,"_showTotals":false})");
    expectCopiesAndMoves(info);
    info.setFieldID(ColumnID(0));
    info.setSortOrder(PivotTableSortOrder::Manual);
    info.setShowTotals(true);
    EXPECT_EQ(info, PivotTableCategoryInfo());
}

TEST(DOM_ValueField, HasAnIdentityOfItsOwn)
{
    EXPECT_NE(ValueField().getUUID(), ValueField().getUUID());
    EXPECT_NE(ValueField(), ValueField());
    const ValueField field(ColumnID(7), PivotTableFunction::Sum);
    EXPECT_EQ(ValueField(field), field);
    expectCopiesAndMoves(field);
}

TEST(DOM_ValueField, WritesItsIdentityFirst)
{
    ValueField field;
    field.setUUID(UUID());
    expectText(field, R"({"value0":{"_uuid":{"_id":"00000000-0000-0000-0000-000000000000"}},)"
                      R"("_fieldID":{"_value":0},"_function":0})");
    field.setFieldID(ColumnID(7));
    field.setFunction(PivotTableFunction::VarP);
    EXPECT_EQ(field.getFieldID(), ColumnID(7));
    EXPECT_EQ(field.getFunction(), PivotTableFunction::VarP);
    expectText(field, R"({"value0":{"_uuid":{"_id":"00000000-0000-0000-0000-000000000000"}},)"
                      R"("_fieldID":{"_value":7},"_function":10})");
}

TEST(DOM_PivotTableField, HasNoNamesByDefault)
{
    expectText(PivotTableField(), R"({"_fieldID":{"_value":0},"_fieldName":"","_nameAlias":""})");
}

TEST(DOM_PivotTableField, GoesByItsNameUntilItHasAnAlias)
{
    PivotTableField field(ColumnID(7), "Sales");
    EXPECT_EQ(field.getAliasOrName(), "Sales");
    field.setNameAlias("Total");
    EXPECT_EQ(field.getAliasOrName(), "Total");
    EXPECT_EQ(field.getFieldName(), "Sales");
    expectText(field, R"({"_fieldID":{"_value":7},"_fieldName":"Sales","_nameAlias":"Total"})");
    expectCopiesAndMoves(field);
    field.setFieldID(ColumnID(8));
    field.setFieldName("Costs");
    EXPECT_EQ(field, PivotTableField(ColumnID(8), "Costs", "Total"));
}

TEST(DOM_PivotTableValue, IsEmptyByDefault)
{
    expectText(PivotTableValue(), R"({"_blocks":[],"_style":{"id":0}})");
    EXPECT_TRUE(PivotTableValue().getBlocks().empty());
    EXPECT_TRUE(PivotTableValue().getStyle().isEmpty());
}

TEST(DOM_PivotTableValue, HoldsBlocksAndAStyle)
{
    PivotTableValue value;
    value.getBlocks().push_back(makeTextBlock("a"));
    value.getSharedStyle() = makeStyle<CellStyle>('1');
    expectPersists(value);
    expectCopiesAndMoves(value);

    const PivotTableValue copy(value);
    EXPECT_NE(&copy.getBlocks()[0], &std::as_const(value).getBlocks()[0]);
    EXPECT_EQ(copy.getSharedStyle(), value.getSharedStyle());
    value.getSharedStyle() = makeStyle<CellStyle>('1');
    EXPECT_EQ(copy, value);
    value.getSharedStyle() = makeStyle<CellStyle>('2');
    EXPECT_NE(copy, value);
}

} // namespace
} // namespace QN::DOM::PivotTablePartsTest
