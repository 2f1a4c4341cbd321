#include "DOM/FormulaSyntaxTree/DOM_BaseCompoundExpr.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::BaseCompoundExprTest {

TEST(BaseCompoundExprTest, IsTheBaseOfWhatHasArguments)
{
    EXPECT_TRUE((std::is_base_of_v<Expr, BaseCompoundExpr>));
    EXPECT_TRUE((std::is_base_of_v<BaseCompoundExpr, ArgumentsList>));
    EXPECT_TRUE((std::is_base_of_v<BaseCompoundExpr, FunctionCall>));
    EXPECT_TRUE((std::is_base_of_v<BaseCompoundExpr, BaseUnaryOp>));
    EXPECT_TRUE((std::is_base_of_v<BaseCompoundExpr, BaseBinaryOp>));
    EXPECT_FALSE((std::is_base_of_v<BaseCompoundExpr, Array>));
}

TEST(BaseCompoundExprTest, PersistsAsItsEmptyBase)
{
    const ArgumentsList list(args(number(1)));
    EXPECT_EQ(toJson(static_cast<const BaseCompoundExpr&>(list)), R"({"value0":{}})");
}

TEST(BaseCompoundExprTest, CloneOfATreeIsEqualAndSharesNoNode)
{
    const auto tree =
        op<Plus>(call("SUM", args(number(1), op<UnaryMinus>(text("a")))), list(args(number(2))));
    const auto copy = clone(*tree);
    EXPECT_TRUE(areDeeplyEqual(*tree, *copy));
    auto& plus = static_cast<Plus&>(*tree);
    auto& plusCopy = static_cast<Plus&>(*copy);
    EXPECT_NE(plus.getArg1().get(), plusCopy.getArg1().get());
    auto& sum = static_cast<FunctionCall&>(*plus.getArg1());
    auto& sumCopy = static_cast<FunctionCall&>(*plusCopy.getArg1());
    EXPECT_NE(sum.getArgs()[0].get(), sumCopy.getArgs()[0].get());
    EXPECT_NE(sum.getArgs()[1].get(), sumCopy.getArgs()[1].get());
}

TEST(BaseCompoundExprTest, ACloneTakesThePlaceOfWhatTheTargetHeldEvenOfItsParent)
{
    std::unique_ptr<Expr> tree = op<Plus>(op<UnaryMinus>(number(1)), number(2));
    const auto expected = op<UnaryMinus>(number(1));
    static_cast<const Plus&>(*tree).getArg1()->cloneTo(tree);
    EXPECT_TRUE(areDeeplyEqual(*tree, *expected));
}

TEST(BaseCompoundExprDeathTest, ANullArgumentStopsACloneAtItsUse)
{
    Plus plus{number(1), number(2)};
    plus.getArg2() = nullptr;
    EXPECT_DEATH(clone(plus), "Utils/Public/Ptr/PtrUtils:254: plainPtr");
}

TEST(BaseCompoundExprDeathTest, ANodeWithoutArgumentsCannotBeCloned)
{
    EXPECT_DEATH(clone(FunctionCall()),
                 R"(DOM_ExprTransformations\.cpp:[0-9]+: argsRange\.begin\(\) != end)");
    EXPECT_DEATH(clone(ArgumentsList()), R"(argsRange\.begin\(\) != end)");
}

} // namespace QN::DOM::FormulaSyntaxTree::BaseCompoundExprTest
