#include "DOM/Tables/Filters/DOM_TableFilter.h"

#include <gtest/gtest.h>

#include "DOM/FamilyChecks.h"
#include "DOM/Tables/Filters/DOM_CompositeTableFilter.h"
#include "DOM/Tables/Filters/DOM_NullaryConditionTableFilter.h"
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
    EXPECT_EQ(
        textError<std::unique_ptr<TableFilter>>(json),
        "Trying to load an unregistered polymorphic type (QN::DOM::ByColumnTableFilter).\n"
        "Make sure your type is registered with CEREAL_REGISTER_TYPE and that the archive you are using was "
        "included (and registered with CEREAL_REGISTER_ARCHIVE) prior to calling CEREAL_REGISTER_TYPE.\n"
        "If your type is already registered and you still see this error, you may need to use "
        "CEREAL_REGISTER_DYNAMIC_INIT.");
}

TEST(DOM_TableFilter, IsNullByPolymorphicIdZero)
{
    expectText(std::unique_ptr<TableFilter>(), NullPolymorphicJson);
}

} // namespace
} // namespace QN::DOM::TableFilterTest
