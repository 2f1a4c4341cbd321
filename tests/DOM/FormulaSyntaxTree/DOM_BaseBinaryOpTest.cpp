#include "DOM/FormulaSyntaxTree/DOM_BaseBinaryOp.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::BaseBinaryOpTest {

TEST(BaseBinaryOpTest, IsTheBaseOfAllBinaryOperators)
{
    EXPECT_TRUE((std::is_base_of_v<BaseBinaryOp, Plus>));
    EXPECT_TRUE((std::is_base_of_v<BaseBinaryOp, Concat>));
    EXPECT_TRUE((std::is_base_of_v<BaseBinaryOp, Union>));
}

TEST(BaseBinaryOpTest, GivesItsOperands)
{
    Plus plus{number(1), number(2)};
    BaseBinaryOp& base = plus;
    EXPECT_TRUE(areDeeplyEqual(*std::as_const(base).getArg1(), Number(1)));
    EXPECT_TRUE(areDeeplyEqual(*std::as_const(base).getArg2(), Number(2)));
    base.getArg1() = text("a");
    base.getArg2() = text("b");
    EXPECT_TRUE(areDeeplyEqual(*plus.getArg1(), String("a")));
    EXPECT_TRUE(areDeeplyEqual(*plus.getArg2(), String("b")));
    EXPECT_EQ(base.getArgsRange().size(), 2U);
    EXPECT_EQ(base.getCArgsRange().data(), &base.getArg1());
}

TEST(BaseBinaryOpTest, PersistsItsOperandsAsAnArrayOfTwo)
{
    const Plus plus{std::make_unique<Empty>(), std::make_unique<Empty>()};
    EXPECT_EQ(toJson(static_cast<const BaseBinaryOp&>(plus)),
              R"j({"value0":{"value0":{}},"_args":[{"this->getPtr()":)j" +
                  pointerJson("Empty", R"({"value0":{"value0":{}}})") +
                  R"j(},{"this->getPtr()":{"polymorphic_id":1,"ptr_wrapper":{"valid":1,)j"
                  R"j("data":{"value0":{"value0":{}}}}}}]})j");
}

TEST(BaseBinaryOpTest, CanBeReplacedByEitherOperandOrItself)
{
    Plus outer{op<Plus>(number(1), number(2)), number(3)};
    outer = std::move(static_cast<Plus&>(*outer.getArg1()));
    EXPECT_EQ(outer, (Plus{number(1), number(2)}));

    Plus other{number(1), op<Plus>(number(2), number(3))};
    other = std::move(static_cast<Plus&>(*other.getArg2()));
    EXPECT_EQ(other, (Plus{number(2), number(3)}));

    Plus& itself = other;
    other = std::move(itself);
    EXPECT_EQ(other, (Plus{number(2), number(3)}));
}

TEST(BaseBinaryOpDeathTest, ANullOperandStopsTheProcess)
{
    EXPECT_DEATH((Plus{ExprPtr(), number(1)}), R"(DOM_BaseBinaryOp\.cpp:[0-9]+: _args\[0\])");
    EXPECT_DEATH((Plus{number(1), ExprPtr()}), R"(DOM_BaseBinaryOp\.cpp:[0-9]+: _args\[1\])");
    EXPECT_DEATH((Plus{ExprPtr(), ExprPtr()}), R"(_args\[0\])");
}

} // namespace QN::DOM::FormulaSyntaxTree::BaseBinaryOpTest
