#include "DOM/FormulaSyntaxTree/DOM_ArgumentsList.h"

#include <gtest/gtest.h>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::ArgumentsListTest {

TEST(ArgumentsListTest, IsEmptyByDefaultAndKeepsItsArgumentsInOrder)
{
    EXPECT_TRUE(ArgumentsList().getArgs().empty());
    ArgumentsList list(args(number(1), text("a")));
    ASSERT_EQ(list.getArgs().size(), 2U);
    EXPECT_TRUE(areDeeplyEqual(*list.getArgs()[0], Number(1)));
    EXPECT_TRUE(areDeeplyEqual(*std::as_const(list).getArgs()[1], String("a")));
    EXPECT_EQ(list.getArgsRange().data(), list.getArgs().data());
    EXPECT_EQ(list.getCArgsRange().size(), 2U);
}

TEST(ArgumentsListTest, ComparesItsArgumentsAndTheirNumber)
{
    const ArgumentsList list(args(number(1), text("a")));
    EXPECT_EQ(list, ArgumentsList(args(number(1), text("a"))));
    EXPECT_NE(list, ArgumentsList(args(number(1), text("b"))));
    EXPECT_NE(list, ArgumentsList(args(number(1))));
    EXPECT_NE(ArgumentsList(args(number(1))), list);
    EXPECT_EQ(ArgumentsList(), ArgumentsList());
}

TEST(ArgumentsListTest, CanBeMadeAgainWithOtherArguments)
{
    const ArgumentsList list(args(number(1)));
    const auto other = list.cloneWithArgs(args(number(2), number(3)));
    EXPECT_TRUE(areDeeplyEqual(*other, ArgumentsList(args(number(2), number(3)))));
}

TEST(ArgumentsListTest, PersistsItsArguments)
{
    EXPECT_EQ(toJson(ArgumentsList(args(std::make_unique<Empty>()))),
              R"j({"value0":{"value0":{}},"_args":[{"this->getPtr()":)j" +
                  pointerJson("Empty", R"({"value0":{"value0":{}}})") + "}]}");
    expectNode(list(args(number(1), list(args(number(2), text("a"))))));
}

TEST(ArgumentsListTest, AnEmptyOneCanBeHeldSavedLoadedAndCompared)
{
    EXPECT_EQ(toJson(ArgumentsList()), R"({"value0":{"value0":{}},"_args":[]})");
    expectPersists(list({}));
}

TEST(ArgumentsListTest, CanBeReplacedByAListInsideIt)
{
    ArgumentsList outer(args(list(args(number(1))), number(2)));
    outer = std::move(static_cast<ArgumentsList&>(*outer.getArgs()[0]));
    EXPECT_EQ(outer, ArgumentsList(args(number(1))));
}

} // namespace QN::DOM::FormulaSyntaxTree::ArgumentsListTest
