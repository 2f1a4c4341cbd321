#include "DOM/FormulaSyntaxTree/DOM_BasePrimitiveType.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::BasePrimitiveTypeTest {

TEST(BasePrimitiveTypeTest, IsTheBaseOfWhatStandsForItself)
{
    EXPECT_TRUE((std::is_base_of_v<Expr, BasePrimitiveType>));
    EXPECT_TRUE((std::is_base_of_v<BasePrimitiveType, String>));
    EXPECT_TRUE((std::is_base_of_v<BasePrimitiveType, Number>));
    EXPECT_TRUE((std::is_base_of_v<BasePrimitiveType, Bool>));
    EXPECT_TRUE((std::is_base_of_v<BasePrimitiveType, Error>));
    EXPECT_TRUE((std::is_base_of_v<BasePrimitiveType, Empty>));
    EXPECT_TRUE((std::is_base_of_v<BasePrimitiveType, Array>));
    EXPECT_FALSE((std::is_base_of_v<BasePrimitiveType, Label>));
}

TEST(BasePrimitiveTypeTest, PersistsAsItsEmptyBase)
{
    EXPECT_EQ(toJson(static_cast<const BasePrimitiveType&>(String("text"))), R"({"value0":{}})");
}

} // namespace QN::DOM::FormulaSyntaxTree::BasePrimitiveTypeTest
