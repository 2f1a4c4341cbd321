#include "DOM/FormulaSyntaxTree/DOM_BaseUnaryOp.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::BaseUnaryOpTest {

TEST(BaseUnaryOpTest, IsTheBaseOfAllUnaryOperators)
{
    EXPECT_TRUE((std::is_base_of_v<BaseUnaryOp, UnaryPlus>));
    EXPECT_TRUE((std::is_base_of_v<BaseUnaryOp, UnaryMinus>));
    EXPECT_TRUE((std::is_base_of_v<BaseUnaryOp, UnaryPercent>));
}

TEST(BaseUnaryOpTest, GivesItsOperand)
{
    UnaryMinus minus{number(1)};
    BaseUnaryOp& base = minus;
    EXPECT_TRUE(areDeeplyEqual(*std::as_const(base).getArg(), Number(1)));
    base.getArg() = text("a");
    EXPECT_TRUE(areDeeplyEqual(*minus.getArg(), String("a")));
    EXPECT_EQ(base.getArgsRange().size(), 1U);
    EXPECT_EQ(base.getCArgsRange().data(), &base.getArg());
}

TEST(BaseUnaryOpTest, PersistsItsOperandAsAnArrayOfOne)
{
    const UnaryMinus minus{ExprPtr(std::make_unique<Empty>())};
    EXPECT_EQ(toJson(static_cast<const BaseUnaryOp&>(minus)),
              R"j({"value0":{"value0":{}},"_args":[{"this->getPtr()":)j" +
                  pointerJson("Empty", R"({"value0":{"value0":{}}})") + "}]}");
}

TEST(BaseUnaryOpTest, CanBeReplacedByItsOperandOrItself)
{
    UnaryMinus outer{op<UnaryMinus>(number(1))};
    outer = std::move(static_cast<UnaryMinus&>(*outer.getArg()));
    EXPECT_EQ(outer, UnaryMinus{number(1)});

    UnaryMinus& itself = outer;
    outer = std::move(itself);
    EXPECT_EQ(outer, UnaryMinus{number(1)});
}

TEST(BaseUnaryOpDeathTest, ANullOperandStopsTheProcess)
{
    EXPECT_DEATH(UnaryPlus{ExprPtr()}, R"(DOM_BaseUnaryOp\.cpp:[0-9]+: _args\[0\])");
}

} // namespace QN::DOM::FormulaSyntaxTree::BaseUnaryOpTest
