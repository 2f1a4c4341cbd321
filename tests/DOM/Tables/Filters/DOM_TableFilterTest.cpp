#include "DOM/Tables/Filters/DOM_TableFilter.h"

#include <gtest/gtest.h>

#include "DOM/FamilyChecks.h"
#include "DOM/Tables/Filters/DOM_CompositeTableFilter.h"
#include "DOM/Tables/Filters/DOM_NullaryConditionTableFilter.h"
#include "DOM/Tables/Filters/DOM_TableFiltersDynamicInitEnforcer.h"
#include "DOM/Tables/Filters/DOM_UnaryConditionTableFilter.h"
#include "DOM/Tables/Filters/DOM_ValuesTableFilter.h"

namespace QN::DOM::TableFilterTest {
namespace {

using namespace QN::Test;

TEST(DOM_TableFilter, IsUnequalToAFilterOfAnotherKind)
{
    const NullaryConditionTableFilter nullary;
    const UnaryConditionTableFilter unary;
    const TableFilter& one = nullary;
    const TableFilter& other = unary;
    EXPECT_FALSE(areDeeplyEqual(one, other));
    EXPECT_FALSE(areDeeplyEqual(other, one));
    EXPECT_TRUE(areDeeplyEqual(one, NullaryConditionTableFilter()));
}

TEST(DOM_TableFilter, IsRefusedUnderTheNameOfItsAbstractKind)
{
    const std::string json =
        makePolymorphicJson("QN::DOM::ByColumnTableFilter", R"({"value0":{},"_columnIndex":{"_value":1}})");
    const std::string error = textError<std::unique_ptr<TableFilter>>(json);
    EXPECT_EQ(error.substr(0, 83),
              "Trying to load an unregistered polymorphic type (QN::DOM::ByColumnTableFilter).\nMak");
}

TEST(DOM_TableFilter, IsNullByPolymorphicIdZero)
{
    expectText(std::unique_ptr<TableFilter>(), NullPolymorphicJson);
}

TEST(DOM_TableFiltersDynamicInitEnforcer, CanBeMadeAnywhere)
{
    [[maybe_unused]] const TableFiltersDynamicInitEnforcer enforcer;
}

} // namespace
} // namespace QN::DOM::TableFilterTest
