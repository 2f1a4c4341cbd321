#include "DOM/Tables/Filters/DOM_ValuesTableFilter.h"

#include <gtest/gtest.h>

#include "DOM/FamilyChecks.h"

namespace QN::DOM::ValuesTableFilterTest {
namespace {

using namespace QN::Test;

ValuesTableFilter makeFilter()
{
    ValuesTableFilter filter(ColumnIndex(7));
    for (const char* value : {"pear", "apple", "pear", ""}) {
        filter.getValuesToShow().insert(value);
    }
    return filter;
}

TEST(DOM_ValuesTableFilter, ShowsNothingByDefault)
{
    EXPECT_TRUE(ValuesTableFilter().getValuesToShow().empty());
    expectText(ValuesTableFilter(),
               R"({"value0":{"value0":{},"_columnIndex":{"_value":0}},"_valuesToShow":[]})");
}

TEST(DOM_ValuesTableFilter, KeepsOneOfEachTextAndWritesThemSorted)
{
    EXPECT_EQ(makeFilter().getValuesToShow().size(), 3U);
    expectInFamily<TableFilter>(
        makeFilter(), "QN::DOM::ValuesTableFilter",
        R"({"value0":{"value0":{},"_columnIndex":{"_value":7}},"_valuesToShow":["","apple","pear"]})");
}

TEST(DOM_ValuesTableFilter, DiffersByItsTexts)
{
    ValuesTableFilter filter = makeFilter();
    filter.getValuesToShow().erase("apple");
    EXPECT_NE(filter, makeFilter());
    filter.getValuesToShow().insert("apple");
    EXPECT_EQ(filter, makeFilter());
}

TEST(DOM_ValuesTableFilter, SortsTheTextsOfAFile)
{
    const auto loaded = fromJson<ValuesTableFilter>(
        R"({"value0":{"value0":{},"_columnIndex":{"_value":7}},"_valuesToShow":["pear","","apple","pear"]})");
    EXPECT_EQ(loaded, makeFilter());
}

} // namespace
} // namespace QN::DOM::ValuesTableFilterTest
