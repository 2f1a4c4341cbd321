#include "DOM/FormulaSyntaxTree/DOM_Array.h"

#include <gtest/gtest.h>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::ArrayTest {

namespace {

std::unique_ptr<Array> makeArray()
{
    Array::Items items;
    items.push_back(args(number(1), text("two")));
    items.emplace_back();
    items.push_back(args(op<Plus>(number(3), row(args(number(4))))));
    return std::make_unique<Array>(std::move(items));
}

} // namespace

TEST(ArrayTest, HasNoRowsByDefault)
{
    EXPECT_TRUE(Array().getItems().empty());
    EXPECT_EQ(toJson(Array()), R"({"value0":{"value0":{}},"_items":[]})");
    expectNode(std::make_unique<Array>());
}

TEST(ArrayTest, PersistsAsRowsOfPointers)
{
    Array::Items items;
    items.push_back(args(std::make_unique<Empty>(), nullptr));
    items.emplace_back();
    const std::string data = R"j({"value0":{"value0":{}},"_items":[[{"this->getPtr()":)j" +
                             pointerJson("Empty", R"({"value0":{"value0":{}}})") +
                             R"j(},{"this->getPtr()":{"polymorphic_id":0}}],[]]})j";
    EXPECT_EQ(toJson(Array(std::move(items))), data);
}

TEST(ArrayTest, PersistsWithArraysAndOperatorsInside)
{
    expectNode(makeArray());
    expectPersists(*makeArray());
}

TEST(ArrayTest, ComparesRowsWithTheirLengthsAndItems)
{
    EXPECT_EQ(*makeArray(), *makeArray());
    auto other = makeArray();
    other->getItems().pop_back();
    EXPECT_NE(*makeArray(), *other);
    EXPECT_NE(*other, *makeArray());
    other = makeArray();
    other->getItems()[0].pop_back();
    EXPECT_NE(*makeArray(), *other);
    other = makeArray();
    other->getItems()[0][1] = text("three");
    EXPECT_NE(*makeArray(), *other);
    other = makeArray();
    static_cast<Plus&>(*other->getItems()[2][0]).getArg2() = row(args(number(5)));
    EXPECT_NE(*makeArray(), *other);
    other = makeArray();
    other->getItems()[0][0] = nullptr;
    EXPECT_NE(*makeArray(), *other);
    EXPECT_NE(*other, *makeArray());
}

TEST(ArrayTest, CopiesAreDeepAndKeepNullItems)
{
    auto array = makeArray();
    array->getItems()[0][0] = nullptr;
    Array copy(*array);
    EXPECT_EQ(copy, *array);
    EXPECT_TRUE(copy.getItems()[0][0] == nullptr);
    EXPECT_NE(copy.getItems()[0][1].get(), array->getItems()[0][1].get());
    const auto& plus = static_cast<const Plus&>(*array->getItems()[2][0]);
    const auto& plusCopy = static_cast<const Plus&>(*copy.getItems()[2][0]);
    EXPECT_NE(&plusCopy, &plus);
    EXPECT_NE(plusCopy.getArg2().get(), plus.getArg2().get());
    EXPECT_NE(static_cast<const Array&>(*plusCopy.getArg2()).getItems()[0][0].get(),
              static_cast<const Array&>(*plus.getArg2()).getItems()[0][0].get());
    expectCopiesAndMoves(*array);
}

TEST(ArrayTest, CanBeReplacedByAnArrayInsideIt)
{
    Array outer;
    outer.getItems().push_back(args(row(args(number(1)))));
    Array copied(outer);
    copied = static_cast<const Array&>(*copied.getItems()[0][0]);
    EXPECT_TRUE(areDeeplyEqual(copied, *row(args(number(1)))));
    outer = std::move(static_cast<Array&>(*outer.getItems()[0][0]));
    EXPECT_EQ(outer, copied);
}

TEST(ArrayDeathTest, ACallWithoutArgumentsInsideStopsACopy)
{
    const auto array = row(args(call("NOW", {})));
    EXPECT_DEATH(clone(*array), R"(DOM_ExprTransformations\.cpp:[0-9]+: argsRange\.begin\(\) != end)");
}

} // namespace QN::DOM::FormulaSyntaxTree::ArrayTest
