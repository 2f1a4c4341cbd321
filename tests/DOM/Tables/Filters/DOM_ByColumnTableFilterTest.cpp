#include "DOM/Tables/Filters/DOM_ByColumnTableFilter.h"

#include <gtest/gtest.h>

#include "DOM/Tables/Filters/DOM_ValuesTableFilter.h"
#include "DOM/Tables/TablePrinters.h"

namespace QN::DOM::ByColumnTableFilterTest {
namespace {

TEST(DOM_ByColumnTableFilter, IsOnTheFirstColumnByDefault)
{
    EXPECT_EQ(ValuesTableFilter().getColumnIndex(), ColumnIndex(0));
}

TEST(DOM_ByColumnTableFilter, DiffersByItsColumn)
{
    ValuesTableFilter filter(ColumnIndex(3));
    EXPECT_EQ(filter.getColumnIndex(), ColumnIndex(3));
    EXPECT_EQ(filter, ValuesTableFilter(ColumnIndex(3)));
    filter.setColumnIndex(ColumnIndex(4));
    EXPECT_EQ(filter, ValuesTableFilter(ColumnIndex(4)));
    EXPECT_NE(filter, ValuesTableFilter(ColumnIndex(3)));
}

} // namespace
} // namespace QN::DOM::ByColumnTableFilterTest
