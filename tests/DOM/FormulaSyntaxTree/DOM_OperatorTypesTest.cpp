#include "DOM/FormulaSyntaxTree/DOM_OperatorTypes.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace QN::DOM::FormulaSyntaxTree::OperatorTypesTest {

TEST(OperatorTypesTest, UnaryOperatorsHaveTheirNumbers)
{
    EXPECT_TRUE((std::is_same_v<UnaryPlus, UnaryOp<UnaryOpType(0)>>));
    EXPECT_TRUE((std::is_same_v<UnaryMinus, UnaryOp<UnaryOpType(1)>>));
    EXPECT_TRUE((std::is_same_v<UnaryPercent, UnaryOp<UnaryOpType(2)>>));
}

TEST(OperatorTypesTest, BinaryOperatorsHaveTheirNumbers)
{
    EXPECT_TRUE((std::is_same_v<Plus, BinaryOp<BinaryOpType(0)>>));
    EXPECT_TRUE((std::is_same_v<Minus, BinaryOp<BinaryOpType(1)>>));
    EXPECT_TRUE((std::is_same_v<Mul, BinaryOp<BinaryOpType(2)>>));
    EXPECT_TRUE((std::is_same_v<Div, BinaryOp<BinaryOpType(3)>>));
    EXPECT_TRUE((std::is_same_v<Pow, BinaryOp<BinaryOpType(4)>>));
    EXPECT_TRUE((std::is_same_v<Equal, BinaryOp<BinaryOpType(5)>>));
    EXPECT_TRUE((std::is_same_v<NotEqual, BinaryOp<BinaryOpType(6)>>));
    EXPECT_TRUE((std::is_same_v<Less, BinaryOp<BinaryOpType(7)>>));
    EXPECT_TRUE((std::is_same_v<LessOrEqual, BinaryOp<BinaryOpType(8)>>));
    EXPECT_TRUE((std::is_same_v<Greater, BinaryOp<BinaryOpType(9)>>));
    EXPECT_TRUE((std::is_same_v<GreaterOrEqual, BinaryOp<BinaryOpType(10)>>));
    EXPECT_TRUE((std::is_same_v<Concat, BinaryOp<BinaryOpType(11)>>));
    EXPECT_TRUE((std::is_same_v<Intersection, BinaryOp<BinaryOpType(12)>>));
    EXPECT_TRUE((std::is_same_v<Union, BinaryOp<BinaryOpType(13)>>));
}

} // namespace QN::DOM::FormulaSyntaxTree::OperatorTypesTest
