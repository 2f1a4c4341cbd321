#include <gtest/gtest.h>

#include <array>

#include "DOM/FormulaSyntaxTree/DOM_ExprTransformations.h"
#include "DOM/FormulaSyntaxTree/ExprBuilders.h"
#include "DOM/Tables/DOM_ConditionalFormat.h"
#include "DOM/Tables/DOM_Formula.h"
#include "Support/SmallStack.h"

/// Depth is data: trees of a million nodes on a stack of half a megabyte.

namespace QN::DOM::FormulaSyntaxTree::ExprDepthTest {

namespace {

constexpr std::size_t Million = 1'000'000;
/// Deep enough for any recursion to leave the small stack.
constexpr std::size_t Enough = 20'000;

/// The last node at each depth is made by `wrap` from the one below it.
template <class Wrap>
std::unique_ptr<Expr> makeChain(std::size_t nodes, Wrap wrap)
{
    std::unique_ptr<Expr> tree = number(1);
    for (std::size_t count = 1; count < nodes; ++count) {
        tree = wrap(std::move(tree));
    }
    return tree;
}

std::unique_ptr<Expr> makeLeftDeep(std::size_t nodes)
{
    return makeChain(nodes / 2 + 1, [](auto tree) { return op<Plus>(std::move(tree), number(2)); });
}

std::unique_ptr<Expr> makeRightDeep(std::size_t nodes)
{
    return makeChain(nodes / 2 + 1, [](auto tree) { return op<Mul>(number(2), std::move(tree)); });
}

std::unique_ptr<Expr> makeUnaryChain(std::size_t nodes)
{
    return makeChain(nodes, [](auto tree) { return op<UnaryMinus>(std::move(tree)); });
}

std::unique_ptr<Expr> makeCallChain(std::size_t nodes)
{
    return makeChain(nodes, [](auto tree) { return call("F", args(std::move(tree))); });
}

std::unique_ptr<Expr> makeListChain(std::size_t nodes)
{
    return makeChain(nodes, [](auto tree) { return list(args(std::move(tree))); });
}

std::unique_ptr<Expr> makeArrayChain(std::size_t nodes)
{
    return makeChain(nodes, [](auto tree) { return row(args(std::move(tree))); });
}

std::unique_ptr<Expr> makeMixedChain(std::size_t nodes)
{
    return makeChain(nodes / 2, [](auto tree) { return row(args(op<UnaryMinus>(std::move(tree)))); });
}

/// Operators with their operand on either side, calls and lists in turn.
std::unique_ptr<Expr> makeChainOfAllKinds(std::size_t nodes)
{
    return makeChain(nodes, [kind = 0](std::unique_ptr<Expr> tree) mutable {
        switch (kind++ % 5) {
        case 0:
            return op<UnaryMinus>(std::move(tree));
        case 1:
            return op<Plus>(std::move(tree), number(2));
        case 2:
            return op<Mul>(number(2), std::move(tree));
        case 3:
            return call("F", args(std::move(tree)));
        default:
            return list(args(std::move(tree)));
        }
    });
}

using Maker = std::unique_ptr<Expr> (*)(std::size_t);

constexpr std::array<Maker, 8> Makers{makeUnaryChain, makeLeftDeep,   makeRightDeep,  makeCallChain,
                                      makeListChain,  makeArrayChain, makeMixedChain, makeChainOfAllKinds};

/// Builds, clones, compares and destroys.
void expectHandles(Maker make, std::size_t nodes)
{
    runOnSmallStack([make, nodes] {
        const auto tree = make(nodes);
        const auto copy = clone(*tree);
        EXPECT_TRUE(areDeeplyEqual(*tree, *copy));
        EXPECT_FALSE(areDeeplyEqual(*tree, *make(nodes / 2)));
    });
}

void expectPersistsDeep(Maker make, std::size_t nodes)
{
    runOnSmallStack([make, nodes] {
        const auto tree = make(nodes);
        const std::string json = toJson(tree);
        const auto loaded = fromJson<std::unique_ptr<Expr>>(json);
        EXPECT_TRUE(areDeeplyEqual(*tree, *loaded));
        EXPECT_TRUE(toJson(loaded) == json);
    });
}

} // namespace

TEST(ExprDepthTest, DeepTreesOfEveryShapeAreBuiltClonedComparedAndDestroyed)
{
    for (const Maker make : Makers) {
        expectHandles(make, Enough);
    }
}

TEST(ExprDepthTest, AMillionOperatorsCallsAndListsInsideEachOtherAreBuiltClonedComparedAndDestroyed)
{
    runOnSmallStack([] {
        const Formula formula(makeChainOfAllKinds(Million), false);
        const Formula copy(formula);
        EXPECT_TRUE(copy == formula);
        const auto clone = cloneToSyntaxTree(toExprStack(*formula.getSyntaxTree()), defaultModifier);
        EXPECT_TRUE(areDeeplyEqual(*clone, *formula.getSyntaxTree()));
    });
}

TEST(ExprDepthTest, DeepTreesThatDifferInTheirInnermostNodeAreUnequal)
{
    runOnSmallStack([] {
        const auto tree = makeUnaryChain(Enough);
        const auto copy = clone(*tree);
        static_cast<Number&>(*toExprStack(*copy).front()).setValue(9);
        EXPECT_FALSE(areDeeplyEqual(*tree, *copy));
        EXPECT_FALSE(areDeeplyEqual(*copy, *tree));
    });
}

TEST(ExprDepthTest, FormulasLeaveDeepTreesWhenTheyAreAssignedTo)
{
    runOnSmallStack([] {
        Formula formula(makeLeftDeep(Enough), false);
        const Formula other(makeRightDeep(Enough), false);
        formula = other;
        EXPECT_TRUE(formula == other);
        formula = Formula(makeUnaryChain(Enough), false);
        EXPECT_FALSE(formula == other);
        formula.getSyntaxTree() = nullptr;
        formula.getSyntaxTree() = makeCallChain(Enough);
        formula = Formula();
        EXPECT_TRUE(formula == Formula());
    });
}

TEST(ExprDepthTest, ConditionalFormatsHoldDeepTrees)
{
    runOnSmallStack([] {
        ConditionalFormat unary;
        unary.setOperator(UnaryConditionalFormatOperator({}, makeLeftDeep(Enough)));
        ConditionalFormat binary;
        binary.setOperator(
            BinaryConditionalFormatOperator({}, makeRightDeep(Enough), makeUnaryChain(Enough)));
        ConditionalFormat textual;
        textual.setOperator(TextConditionalFormatOperator({}, makeCallChain(Enough)));
        for (const ConditionalFormat& format : {unary, binary, textual}) {
            ConditionalFormat copy(format);
            EXPECT_TRUE(copy == format);
            copy.setOperator(NullaryConditionalFormatOperator::ContainsBlanks);
            EXPECT_FALSE(copy == format);
        }
    });
}

TEST(ExprDepthTest, AModifierSeesEveryNodeOfADeepTree)
{
    runOnSmallStack([] {
        const auto tree = makeLeftDeep(Enough);
        std::size_t seen = 0;
        const auto count = [&](std::unique_ptr<Expr> expr) {
            ++seen;
            return expr;
        };
        EXPECT_TRUE(areDeeplyEqual(*tree, *cloneToSyntaxTree(toExprStack(std::as_const(*tree)), count)));
        EXPECT_EQ(seen, Enough + 1);
    });
}

TEST(ExprDepthTest, DeepTreesOfEveryShapeAreSavedAndLoaded)
{
    for (const Maker make : Makers) {
        expectPersistsDeep(make, Enough);
    }
}

TEST(ExprDepthTest, AFormulaWithAChainOfFiveThousandOperatorsPersistsWithTheDefaultOptions)
{
    expectRoundTrip(Formula(makeLeftDeep(2 * 5000), true));
    expectRoundTrip(Formula(makeRightDeep(2 * 5000), true));
}

TEST(ExprDepthTest, ADeepTreeThatBreaksOffInTheMiddleOfALoadIsGivenUp)
{
    runOnSmallStack([] {
        std::string json = toJson(makeUnaryChain(Enough));
        const std::size_t value = json.rfind("\"_value\":1.0");
        ASSERT_NE(value, std::string::npos);
        json.replace(value, 8, "\"_other\"");
        EXPECT_EQ(loadError<std::unique_ptr<Expr>>(json),
                  "JSON Parsing failed - provided NVP (_value) not found");
    });
}

TEST(ExprDepthTest, AnExpressionCountsAsOneLevelAgainstTheNestingLimitHoweverDeepItIs)
{
    const auto tree = makeUnaryChain(1000);
    const std::string json = toJson(tree);
    constexpr std::size_t Limit = 16;

    std::ostringstream output;
    cereal::JSONOutputArchive::Options saving;
    saving.nestingLimit = Limit;
    {
        cereal::JSONOutputArchive archive(output, saving);
        archive.member("object", tree);
        EXPECT_EQ(archive.getNesting(), 0U);
    }
    EXPECT_EQ(output.str(), json);

    std::istringstream input(json);
    cereal::JSONInputArchive::Options loading;
    loading.nestingLimit = Limit;
    cereal::JSONInputArchive archive(input, loading);
    std::unique_ptr<Expr> loaded;
    archive.member("object", loaded);
    EXPECT_EQ(archive.getNesting(), 0U);
    EXPECT_TRUE(areDeeplyEqual(*loaded, *tree));
}

} // namespace QN::DOM::FormulaSyntaxTree::ExprDepthTest
