#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasExpression.h"

#include <gtest/gtest.h>

#include "DOM/Shapes/DrawingFormulas/ExpressionSamples.h"
#include "Support/Randomize.h"

namespace QN::DOM::DrawingFormulas::DrawingFormulasExpressionTest {
namespace {

std::vector<std::unique_ptr<Expression>> makeOneOfEachKind()
{
    std::vector<std::unique_ptr<Expression>> kinds;
    kinds.push_back(std::make_unique<Value>());
    kinds.push_back(std::make_unique<AdjustValueReference>());
    kinds.push_back(std::make_unique<FormulaReference>());
    kinds.push_back(std::make_unique<Constant>());
    kinds.push_back(std::make_unique<UnaryFunction>());
    kinds.push_back(std::make_unique<BinaryFunction>());
    kinds.push_back(std::make_unique<IfFunction>());
    return kinds;
}

TEST(DrawingFormulasExpression, NumbersItsSevenKindsInTheOrderOfTheFamily)
{
    static_assert(
        std::is_same_v<Expression::Types, TypeList<Value, AdjustValueReference, FormulaReference, Constant,
                                                   UnaryFunction, BinaryFunction, IfFunction>>);
    static_assert(std::is_abstract_v<Expression>);
    static_assert(std::is_base_of_v<Clonable<Expression>, Expression>);
    static_assert(!Ordered<Expression>);
}

TEST(DrawingFormulasExpression, IsDeeplyEqualOnlyToOneOfItsOwnClass)
{
    const auto kinds = makeOneOfEachKind();
    for (std::size_t left = 0; left < kinds.size(); ++left) {
        for (std::size_t right = 0; right < kinds.size(); ++right) {
            EXPECT_EQ(areDeeplyEqual(*kinds[left], *kinds[right]), left == right) << left << " and " << right;
        }
    }
}

TEST(DrawingFormulasExpression, LoadsEachKindAsItsOwnClass)
{
    const auto kinds = makeOneOfEachKind();
    expectPersists(kinds);
    const auto loaded = fromJson<std::vector<std::unique_ptr<Expression>>>(toJson(kinds));
    ASSERT_EQ(loaded.size(), kinds.size());
    for (std::size_t index = 0; index < kinds.size(); ++index) {
        const Expression& read = *loaded[index];
        const Expression& written = *kinds[index];
        EXPECT_EQ(typeid(read), typeid(written));
    }
}

TEST(DrawingFormulasExpression, WritesTheNameOfAKindOnce)
{
    std::vector<std::unique_ptr<Expression>> formulas;
    formulas.push_back(value(1.5));
    formulas.push_back(value(2.5));
    formulas.push_back(nullptr);
    expectText(formulas,
               "[" + firstValueJson("1.5") + "," + laterValueJson("2.5") + "," + NullPolymorphicJson + "]");
}

TEST(DrawingFormulasExpression, RefusesANameThatIsNotRegistered)
{
    const std::string message = textError<std::unique_ptr<Expression>>(
        makePolymorphicJson("QN::DOM::DrawingFormulas::Reference", R"({"value0":{},"_index":1})"));
    EXPECT_EQ(message.substr(0, message.find('\n')),
              "Trying to load an unregistered polymorphic type (QN::DOM::DrawingFormulas::Reference).");
}

TEST(DrawingFormulasExpression, RandomTreesPersistAndCopyWithoutSharing)
{
    for (unsigned seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE(seed);
        Random random(seed);
        random.depth = 6;
        const auto tree = RandomizeDetails::randomObject<Expression>(random);
        expectRoundTrip(tree);
        std::unique_ptr<Expression> copy;
        tree->cloneTo(copy);
        EXPECT_TRUE(areDeeplyEqual(*copy, *tree));
        const std::string json = toJson(tree);
        const_cast<std::unique_ptr<Expression>&>(tree).reset();
        EXPECT_EQ(toJson(copy), json);
    }
}

TEST(DrawingFormulasExpression, ItsEnforcerIsEmpty)
{
    static_assert(std::is_empty_v<ExpressionsDynamicInitEnforcer>);
    static_assert(!std::is_trivially_default_constructible_v<ExpressionsDynamicInitEnforcer>);
    const ExpressionsDynamicInitEnforcer enforcer;
    static_cast<void>(enforcer);
}

} // namespace
} // namespace QN::DOM::DrawingFormulas::DrawingFormulasExpressionTest
