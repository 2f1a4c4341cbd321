#include "DOM/Tables/DOM_Formula.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaTest {

using namespace FormulaSyntaxTree;

namespace {

using Size = Size2D<std::uint64_t>;

Formula makeFormula()
{
    return {op<Plus>(number(1), call("F", args(number(2)))), false};
}

} // namespace

TEST(FormulaTest, HasNoTreeNoSizeAndIsNotForcedByDefault)
{
    const Formula formula;
    EXPECT_TRUE(formula.getSyntaxTree() == nullptr);
    EXPECT_FALSE(formula.isForceFormula());
    EXPECT_FALSE(formula.getArrayFormulaSize().has_value());
}

TEST(FormulaTest, KeepsItsTreeAndFlag)
{
    Formula formula(number(1), true);
    EXPECT_TRUE(formula.isForceFormula());
    EXPECT_TRUE(areDeeplyEqual(*std::as_const(formula).getSyntaxTree(), Number(1)));
    EXPECT_TRUE((std::is_same_v<decltype(*std::as_const(formula).getSyntaxTree()), const Expr&>));
    static_cast<Number&>(*formula.getSyntaxTree()).setValue(2);
    EXPECT_TRUE(areDeeplyEqual(*formula.getSyntaxTree(), Number(2)));
}

TEST(FormulaTest, AnEmptySizeTurnsAnArrayFormulaIntoAnOrdinaryOne)
{
    Formula formula = makeFormula();
    formula.setArrayFormulaSize(Size(2, 3));
    ASSERT_TRUE(formula.getArrayFormulaSize().has_value());
    EXPECT_EQ(*formula.getArrayFormulaSize(), Size(2, 3));
    EXPECT_NE(formula, makeFormula());
    formula.setArrayFormulaSize(boost::none);
    EXPECT_FALSE(formula.getArrayFormulaSize().has_value());
    EXPECT_EQ(formula, makeFormula());
}

TEST(FormulaTest, EqualTreesWithDifferentFlagsAreNotEqual)
{
    EXPECT_EQ(Formula(number(1), true), Formula(number(1), true));
    EXPECT_NE(Formula(number(1), true), Formula(number(1), false));
}

TEST(FormulaTest, ComparesTheSizeAndTheTree)
{
    Formula sized = makeFormula();
    sized.setArrayFormulaSize(Size(2, 3));
    Formula otherwise = makeFormula();
    otherwise.setArrayFormulaSize(Size(3, 2));
    EXPECT_NE(sized, otherwise);
    EXPECT_NE(makeFormula(), Formula(number(1), false));
    EXPECT_NE(makeFormula(), Formula());
    EXPECT_NE(Formula(), makeFormula());
    EXPECT_EQ(Formula(), Formula());
}

TEST(FormulaTest, ACopySharesNoNodeWithItsSource)
{
    const Formula formula = makeFormula();
    const Formula copy(formula);
    EXPECT_EQ(copy, formula);
    const auto& plus = static_cast<const Plus&>(*formula.getSyntaxTree());
    const auto& plusCopy = static_cast<const Plus&>(*copy.getSyntaxTree());
    EXPECT_NE(&plus, &plusCopy);
    EXPECT_NE(plus.getArg1().get(), plusCopy.getArg1().get());
    EXPECT_NE(plus.getArg2().get(), plusCopy.getArg2().get());
    EXPECT_NE(static_cast<const FunctionCall&>(*plus.getArg2()).getArgs()[0].get(),
              static_cast<const FunctionCall&>(*plusCopy.getArg2()).getArgs()[0].get());
}

TEST(FormulaTest, CopiesAndMovesLikeAValue)
{
    expectCopiesAndMoves(Formula());
    expectCopiesAndMoves(makeFormula());
    Formula formula = makeFormula();
    formula.setArrayFormulaSize(Size(2, 3));
    expectCopiesAndMoves(formula);
}

TEST(FormulaTest, PersistsTheSizeTheFlagAndTheTree)
{
    EXPECT_EQ(toJson(Formula()), R"j({"_arrayFormulaSize":{"hasValue":false},"_forceFormula":false,)j"
                                 R"j("_formulaSyntaxTree":{"this->getPtr()":{"polymorphic_id":0}}})j");
    Formula formula(std::make_unique<Empty>(), true);
    formula.setArrayFormulaSize(Size(2, 3));
    EXPECT_EQ(toJson(formula), R"j({"_arrayFormulaSize":{"hasValue":true,"value":{"_width":2,"_height":3}},)j"
                               R"j("_forceFormula":true,"_formulaSyntaxTree":{"this->getPtr()":)j" +
                                   pointerJson("Empty", R"({"value0":{"value0":{}}})") + "}}");
    expectPersists(Formula());
    expectPersists(formula);
    expectPersists(makeFormula());
}

TEST(FormulaDeathTest, AFormulaWithACallWithoutArgumentsCannotBeCopied)
{
    const Formula formula(call("NOW", {}), false);
    EXPECT_EQ(formula, Formula(call("NOW", {}), false));
    EXPECT_DEATH(Formula copy(formula), R"(argsRange\.begin\(\) != end)");
}

} // namespace QN::DOM::FormulaTest
