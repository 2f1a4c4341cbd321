#include "DOM/Tables/DOM_PivotTableCategoryInfo.h"

#include <gtest/gtest.h>

#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::PivotTableCategoryInfoTest {
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

TEST(DOM_PivotTableCategoryInfo, DiffersByEachOfItsMembers)
{
    const PivotTableCategoryInfo info(ColumnID(7), PivotTableSortOrder::Descending, false);
    EXPECT_EQ(info, PivotTableCategoryInfo(ColumnID(7), PivotTableSortOrder::Descending, false));
    EXPECT_NE(info, PivotTableCategoryInfo(ColumnID(8), PivotTableSortOrder::Descending, false));
    EXPECT_NE(info, PivotTableCategoryInfo(ColumnID(7), PivotTableSortOrder::Ascending, false));
    EXPECT_NE(info, PivotTableCategoryInfo(ColumnID(7), PivotTableSortOrder::Descending, true));
}

TEST(DOM_PivotTableCategoryInfo, PassesUnknownSortOrdersThrough)
{
    expectText(PivotTableCategoryInfo(ColumnID(7), static_cast<PivotTableSortOrder>(2147483647), true),
               R"({"_fieldID":{"_value":7},"_sortOrder":2147483647,"_showTotals":true})");
    expectText(PivotTableCategoryInfo(ColumnID(7), static_cast<PivotTableSortOrder>(-1), true),
               R"({"_fieldID":{"_value":7},"_sortOrder":-1,"_showTotals":true})");
}

} // namespace
} // namespace QN::DOM::PivotTableCategoryInfoTest
