#include "DOM/FormulaSyntaxTree/DOM_UnaryOp.h"

#include <gtest/gtest.h>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::UnaryOpTest {

template <class Operator>
class UnaryOpTest : public testing::Test {
};

using UnaryOps = testing::Types<UnaryPlus, UnaryMinus, UnaryPercent>;
TYPED_TEST_SUITE(UnaryOpTest, UnaryOps);

TYPED_TEST(UnaryOpTest, ClonesPersistsAndCompares)
{
    expectNode(op<TypeParam>(number(1)));
    expectNode(op<TypeParam>(op<TypeParam>(text("a"))));
    EXPECT_EQ(TypeParam{number(1)}, TypeParam{number(1)});
    EXPECT_NE(TypeParam{number(1)}, TypeParam{number(2)});
}

TYPED_TEST(UnaryOpTest, CanBeMadeAgainWithAnotherArgument)
{
    const TypeParam node{number(1)};
    EXPECT_TRUE(areDeeplyEqual(*node.cloneWithArgs(args(text("a"))), TypeParam{text("a")}));
}

TYPED_TEST(UnaryOpTest, PersistsOneLevelAClass)
{
    EXPECT_EQ(toJson(TypeParam{ExprPtr(std::make_unique<Empty>())}),
              R"j({"value0":{"value0":{"value0":{}},"_args":[{"this->getPtr()":)j" +
                  pointerJson("Empty", R"({"value0":{"value0":{}}})") + "}]}}");
}

TYPED_TEST(UnaryOpTest, TakesExactlyOneArgumentFromAFile)
{
    EXPECT_EQ(loadError<TypeParam>(R"({"value0":{"value0":{"value0":{}},"_args":[]}})"),
              "An array of 1 elements has another size");
    EXPECT_EQ(loadError<TypeParam>(R"j({"value0":{"value0":{"value0":{}},"_args":[
                  {"this->getPtr()":{"polymorphic_id":0}},{"this->getPtr()":{"polymorphic_id":0}}]}})j"),
              "An array of 1 elements has another size");
}

TEST(UnaryOpDeathTest, OtherCountsOfArgumentsStopTheProcess)
{
    const UnaryMinus node{number(1)};
    EXPECT_DEATH(node.cloneWithArgs({}), R"(DOM_UnaryOp\.cpp:[0-9]+: exprs\.size\(\) == 1)");
    EXPECT_DEATH(node.cloneWithArgs(args(number(1), number(2))), R"(exprs\.size\(\) == 1)");
    EXPECT_DEATH(node.cloneWithArgs(args(nullptr)), R"(_args\[0\])");
}

} // namespace QN::DOM::FormulaSyntaxTree::UnaryOpTest
