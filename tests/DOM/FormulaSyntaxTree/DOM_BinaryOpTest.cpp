#include "DOM/FormulaSyntaxTree/DOM_BinaryOp.h"

#include <gtest/gtest.h>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::BinaryOpTest {

template <class Operator>
class BinaryOpTest : public testing::Test {
};

using BinaryOps = testing::Types<Plus, Minus, Mul, Div, Pow, Equal, NotEqual, Less, LessOrEqual, Greater,
                                 GreaterOrEqual, Concat, Intersection, Union>;
TYPED_TEST_SUITE(BinaryOpTest, BinaryOps);

TYPED_TEST(BinaryOpTest, ClonesPersistsAndCompares)
{
    expectNode(op<TypeParam>(number(1), op<TypeParam>(text("a"), number(2))));
    EXPECT_EQ((TypeParam{number(1), number(2)}), (TypeParam{number(1), number(2)}));
    EXPECT_NE((TypeParam{number(1), number(2)}), (TypeParam{number(2), number(1)}));
    EXPECT_NE((TypeParam{number(1), number(2)}), (TypeParam{number(1), number(3)}));
}

TYPED_TEST(BinaryOpTest, CanBeMadeAgainWithOtherArguments)
{
    const TypeParam node{number(1), number(2)};
    EXPECT_TRUE(
        areDeeplyEqual(*node.cloneWithArgs(args(text("a"), text("b"))), TypeParam{text("a"), text("b")}));
}

TYPED_TEST(BinaryOpTest, PersistsOneLevelAClass)
{
    EXPECT_EQ(toJson(TypeParam{std::make_unique<Empty>(), std::make_unique<Bool>(true)}),
              R"j({"value0":{"value0":{"value0":{}},"_args":[{"this->getPtr()":)j" +
                  pointerJson("Empty", R"({"value0":{"value0":{}}})") +
                  R"j(},{"this->getPtr()":{"polymorphic_id":2147483650,)j"
                  R"j("polymorphic_name":"QN::DOM::FormulaSyntaxTree::Bool",)j"
                  R"j("ptr_wrapper":{"valid":1,"data":{"value0":{"value0":{}},"_bool":true}}}}]}})j");
}

TYPED_TEST(BinaryOpTest, TakesExactlyTwoArgumentsFromAFile)
{
    const std::string null = R"j({"this->getPtr()":{"polymorphic_id":0}})j";
    const std::string begin = R"({"value0":{"value0":{"value0":{}},"_args":[)";
    EXPECT_EQ(loadError<TypeParam>(begin + "]}}"), "An array of 2 elements has another size");
    EXPECT_EQ(loadError<TypeParam>(begin + null + "]}}"), "An array of 2 elements has another size");
    EXPECT_EQ(loadError<TypeParam>(begin + null + "," + null + "]}}"), "<loaded>");
    EXPECT_EQ(loadError<TypeParam>(begin + null + "," + null + "," + null + "]}}"),
              "An array of 2 elements has another size");
}

TEST(BinaryOpDeathTest, OtherCountsOfArgumentsStopTheProcess)
{
    const Plus node{number(1), number(2)};
    EXPECT_DEATH(node.cloneWithArgs({}), R"(DOM_BinaryOp\.cpp:[0-9]+: exprs\.size\(\) == 2)");
    EXPECT_DEATH(node.cloneWithArgs(args(number(1))), R"(exprs\.size\(\) == 2)");
    EXPECT_DEATH(node.cloneWithArgs(args(number(1), number(2), number(3))), R"(exprs\.size\(\) == 2)");
    EXPECT_DEATH(node.cloneWithArgs(args(number(1), nullptr)), R"(_args\[1\])");
}

} // namespace QN::DOM::FormulaSyntaxTree::BinaryOpTest
