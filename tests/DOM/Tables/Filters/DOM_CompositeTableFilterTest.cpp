#include "DOM/Tables/Filters/DOM_CompositeTableFilter.h"

#include <gtest/gtest.h>

#include "DOM/FamilyChecks.h"
#include "DOM/Tables/Filters/DOM_NullaryConditionTableFilter.h"
#include "DOM/Tables/Filters/DOM_UnaryConditionTableFilter.h"

namespace QN::DOM::CompositeTableFilterTest {
namespace {

using namespace QN::Test;

/// A filter on one column, and another composite filter with a null one in it.
CompositeTableFilter makeFilter()
{
    auto inner = std::make_unique<CompositeTableFilter>(CompositeTableFilterType::And);
    inner->getFilters().push_back(std::make_unique<NullaryConditionTableFilter>(ColumnIndex(2)));
    inner->getFilters().push_back(nullptr);
    CompositeTableFilter filter(CompositeTableFilterType::Or);
    filter.getFilters().push_back(std::make_unique<NullaryConditionTableFilter>(ColumnIndex(1)));
    filter.getFilters().push_back(std::move(inner));
    return filter;
}

TEST(DOM_CompositeTableFilter, HasTheTypeOfNumberZeroAndNoFiltersByDefault)
{
    EXPECT_EQ(static_cast<int>(CompositeTableFilter().getType()), 0);
    expectText(CompositeTableFilter(), R"({"value0":{},"_type":0,"_filters":[]})");
}

std::string makeLeafData(const std::string& column)
{
    return R"({"value0":{"value0":{},"_columnIndex":{"_value":)" + column + R"(}},"_operator":0})";
}

TEST(DOM_CompositeTableFilter, KeepsTheNestingOfItsFilters)
{
    expectText(makeFilter(),
               R"({"value0":{},"_type":1,"_filters":[)" +
                   makePolymorphicJson("QN::DOM::NullaryConditionTableFilter", makeLeafData("1")) + "," +
                   makePolymorphicJson("QN::DOM::CompositeTableFilter",
                                       R"({"value0":{},"_type":0,"_filters":[)" +
                                           makeLaterPolymorphicJson(makeLeafData("2")) +
                                           R"(,{"polymorphic_id":0}]})",
                                       2) +
                   "]}");
    expectCopiesAndMoves(makeFilter());
}

TEST(DOM_CompositeTableFilter, IsOneOfItsFamily)
{
    expectInFamily<TableFilter>(CompositeTableFilter(CompositeTableFilterType::Or),
                                "QN::DOM::CompositeTableFilter", R"({"value0":{},"_type":1,"_filters":[]})");
}

TEST(DOM_CompositeTableFilter, SharesNoFilterWithItsCopy)
{
    const CompositeTableFilter source = makeFilter();
    CompositeTableFilter copy(source);
    EXPECT_NE(copy.getFilters()[0].get(), source.getFilters()[0].get());
    static_cast<NullaryConditionTableFilter&>(*copy.getFilters()[0]).setColumnIndex(ColumnIndex(9));
    EXPECT_EQ(source, makeFilter());
    EXPECT_NE(copy, source);
}

TEST(DOM_CompositeTableFilter, DiffersByItsTypeAndByTheOrderOfItsFilters)
{
    CompositeTableFilter filter = makeFilter();
    filter.setType(CompositeTableFilterType::And);
    EXPECT_NE(filter, makeFilter());
    filter = makeFilter();
    std::swap(filter.getFilters()[0], filter.getFilters()[1]);
    EXPECT_NE(filter, makeFilter());
}

TEST(DOM_CompositeTableFilter, PassesUnknownTypesThrough)
{
    expectText(CompositeTableFilter(static_cast<CompositeTableFilterType>(2147483647)),
               R"({"value0":{},"_type":2147483647,"_filters":[]})");
    expectText(CompositeTableFilter(static_cast<CompositeTableFilterType>(-1)),
               R"({"value0":{},"_type":-1,"_filters":[]})");
}

TEST(DOM_CompositeTableFilter, RefusesAClassOfAnotherFamily)
{
    const std::string json = R"({"value0":{},"_type":0,"_filters":[)" +
                             makePolymorphicJson("QN::DOM::NoFill", R"({"value0":{}})") + "]}";
    EXPECT_EQ(loadError<CompositeTableFilter>(json),
              "Trying to load a registered polymorphic type with an unregistered polymorphic cast.\n"
              "Could not find a path to a base class (QN::DOM::TableFilter) for type: QN::DOM::NoFill");
}

} // namespace
} // namespace QN::DOM::CompositeTableFilterTest
