#include "DOM/Tables/DOM_PivotTableField.h"

#include <gtest/gtest.h>

#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::PivotTableFieldTest {
namespace {

using namespace QN::Test;

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

TEST(DOM_PivotTableField, DiffersByEachOfItsMembers)
{
    const PivotTableField field(ColumnID(7), "Sales", "Total");
    EXPECT_EQ(field, PivotTableField(ColumnID(7), "Sales", "Total"));
    EXPECT_NE(field, PivotTableField(ColumnID(8), "Sales", "Total"));
    EXPECT_NE(field, PivotTableField(ColumnID(7), "Costs", "Total"));
    EXPECT_NE(field, PivotTableField(ColumnID(7), "Sales"));
}

} // namespace
} // namespace QN::DOM::PivotTableFieldTest
