#include "DOM/FormulaSyntaxTree/DOM_ExprTransformations.h"

#include <gtest/gtest.h>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::ExprTransformationsTest {

namespace {

/// The expression in the letters of its nodes, as reverse Polish notation.
std::string spell(const std::vector<const Expr*>& nodes)
{
    struct Speller {
        std::string operator()(const Number& node) const
        {
            return std::to_string(static_cast<int>(node.getValue()));
        }
        std::string operator()(const Plus&) const { return "+"; }
        std::string operator()(const Mul&) const { return "*"; }
        std::string operator()(const UnaryMinus&) const { return "-"; }
        std::string operator()(const FunctionCall& node) const { return node.getFuncName(); }
        std::string operator()(const ArgumentsList&) const { return "list"; }
        std::string operator()(const Array&) const { return "array"; }
        std::string operator()(const Empty&) const { return "empty"; }
    };

    std::string spelled;
    for (const Expr* const node : nodes) {
        spelled += (spelled.empty() ? "" : " ") + ::QN::visit<std::string>(*node, Speller{});
    }
    return spelled;
}

std::unique_ptr<Expr> makeTree()
{
    return op<Plus>(call("F", args(number(1), op<UnaryMinus>(number(2)), row(args(number(3), number(4))))),
                    op<Mul>(list(args(number(5))), number(6)));
}

std::unique_ptr<Expr> replaceNumbers(std::unique_ptr<Expr> expr)
{
    if (dynamic_cast<const Number*>(expr.get()) != nullptr) {
        return std::make_unique<Empty>();
    }
    return expr;
}

} // namespace

TEST(ExprTransformationsTest, TheStackOfALeafIsThatLeaf)
{
    const Number leaf(1);
    EXPECT_EQ(toExprStack(leaf), std::vector<const Expr*>{&leaf});
    Array array;
    array.getItems().push_back(args(number(1)));
    EXPECT_EQ(toExprStack(array), std::vector<Expr*>{&array});
}

TEST(ExprTransformationsTest, TheStackHasChildrenBeforeParentsAndTheRootLast)
{
    const auto tree = op<Plus>(number(1), op<Mul>(number(2), number(3)));
    const auto& plus = static_cast<const Plus&>(*tree);
    const auto& mul = static_cast<const Mul&>(*plus.getArg2());
    const std::vector<const Expr*> expected{plus.getArg1().get(), mul.getArg1().get(), mul.getArg2().get(),
                                            &mul, &plus};
    EXPECT_EQ(toExprStack(std::as_const(*tree)), expected);
    EXPECT_EQ(spell(toExprStack(std::as_const(*tree))), "1 2 3 * +");
}

TEST(ExprTransformationsTest, TheStackTakesEveryKindOfNodeApartButArrays)
{
    const auto tree = makeTree();
    EXPECT_EQ(spell(toExprStack(std::as_const(*tree))), "1 2 - array F 5 list 6 * +");
}

TEST(ExprTransformationsTest, TheStackOfAChangeableTreeHasTheSameNodes)
{
    const auto tree = makeTree();
    const std::vector<Expr*> nodes = toExprStack(*tree);
    EXPECT_EQ(std::vector<const Expr*>(nodes.begin(), nodes.end()), toExprStack(std::as_const(*tree)));
    static_cast<Number&>(*nodes[0]).setValue(9);
    EXPECT_EQ(spell(toExprStack(std::as_const(*tree))), "9 2 - array F 5 list 6 * +");
}

TEST(ExprTransformationsDeathTest, TheStackStopsAtANodeWithoutArguments)
{
    const auto tree = op<Plus>(number(1), list({}));
    EXPECT_DEATH(toExprStack(std::as_const(*tree)),
                 R"(DOM_ExprTransformations\.cpp:[0-9]+: argsRange\.begin\(\) != end)");
    EXPECT_DEATH(toExprStack(*tree), R"(argsRange\.begin\(\) != end)");
}

TEST(ExprTransformationsDeathTest, TheStackStopsAtANullArgument)
{
    const auto tree = op<Plus>(number(1), list(args(nullptr)));
    EXPECT_DEATH(toExprStack(std::as_const(*tree)), "Utils/Public/Ptr/PtrUtils:254: plainPtr");
    EXPECT_DEATH(toExprStack(*tree), "Utils/Public/Ptr/PtrUtils:246: plainPtr");
}

TEST(ExprTransformationsTest, ATreeBuiltAgainIsEqualAndSharesNoNode)
{
    const auto tree = makeTree();
    const auto nodes = toExprStack(std::as_const(*tree));
    const auto copy = cloneToSyntaxTree(nodes, defaultModifier);
    EXPECT_TRUE(areDeeplyEqual(*tree, *copy));
    const auto copies = toExprStack(std::as_const(*copy));
    ASSERT_EQ(copies.size(), nodes.size());
    for (std::size_t index = 0; index < nodes.size(); ++index) {
        EXPECT_NE(copies[index], nodes[index]);
    }
}

TEST(ExprTransformationsTest, AModifierReplacesNodesAtAllDepthsButInArrays)
{
    const auto tree = makeTree();
    const auto copy = cloneToSyntaxTree(toExprStack(std::as_const(*tree)), replaceNumbers);
    EXPECT_EQ(spell(toExprStack(std::as_const(*copy))), "empty empty - array F empty list empty * +");
    const auto& plus = static_cast<const Plus&>(*copy);
    const auto& call = static_cast<const FunctionCall&>(*plus.getArg1());
    EXPECT_TRUE(areDeeplyEqual(*call.getArgs()[2], *row(args(number(3), number(4)))));
}

TEST(ExprTransformationsTest, AModifierSeesANodeAfterItsChildrenAreInPlace)
{
    const auto tree = op<Plus>(number(1), op<Mul>(number(2), number(3)));
    std::vector<std::string> seen;
    const auto modifier = [&](std::unique_ptr<Expr> expr) {
        expr = replaceNumbers(std::move(expr));
        seen.push_back(spell(toExprStack(std::as_const(*expr))));
        return expr;
    };
    cloneToSyntaxTree(toExprStack(std::as_const(*tree)), modifier);
    EXPECT_EQ(seen, (std::vector<std::string>{"empty", "empty", "empty", "empty empty *",
                                              "empty empty empty * +"}));
}

TEST(ExprTransformationsTest, AModifierThatReplacesTheRootDecidesTheResult)
{
    const auto modifier = [](std::unique_ptr<Expr> expr) -> std::unique_ptr<Expr> {
        return dynamic_cast<const Plus*>(expr.get()) != nullptr ? number(7) : std::move(expr);
    };
    const auto copy = cloneToSyntaxTree(toExprStack(std::as_const(*makeTree())), modifier);
    EXPECT_TRUE(areDeeplyEqual(*copy, Number(7)));
}

TEST(ExprTransformationsTest, ANullFromAModifierIsHeldByACallOrIsTheResult)
{
    const auto drop = [](std::unique_ptr<Expr> expr) -> std::unique_ptr<Expr> {
        return dynamic_cast<const Number*>(expr.get()) != nullptr ? nullptr : std::move(expr);
    };
    const auto tree = call("F", args(number(1), text("a")));
    const auto copy = cloneToSyntaxTree(toExprStack(std::as_const(*tree)), drop);
    EXPECT_TRUE(areDeeplyEqual(*copy, *call("F", args(nullptr, text("a")))));
    const Number leaf(1);
    EXPECT_EQ(cloneToSyntaxTree({&leaf}, drop), nullptr);
}

TEST(ExprTransformationsDeathTest, ANullFromAModifierStopsAnOperator)
{
    const auto drop = [](std::unique_ptr<Expr> /*expr*/) { return std::unique_ptr<Expr>(); };
    const auto minus = op<UnaryMinus>(number(1));
    EXPECT_DEATH(cloneToSyntaxTree(toExprStack(std::as_const(*minus)), drop),
                 R"(DOM_BaseUnaryOp\.cpp:[0-9]+: _args\[0\])");
    const auto plus = op<Plus>(number(1), number(2));
    EXPECT_DEATH(cloneToSyntaxTree(toExprStack(std::as_const(*plus)), drop),
                 R"(DOM_BaseBinaryOp\.cpp:[0-9]+: _args\[0\])");
}

TEST(ExprTransformationsDeathTest, AnEmptySequenceMakesNoTree)
{
    EXPECT_DEATH(cloneToSyntaxTree({}, defaultModifier),
                 R"(DOM_ExprTransformations\.cpp:[0-9]+: exprCloner\._clonesStack\.size\(\) == 1)");
}

TEST(ExprTransformationsDeathTest, ASequenceOfTwoTreesMakesNoTree)
{
    const Number leaf(1);
    EXPECT_DEATH(cloneToSyntaxTree({&leaf, &leaf}, defaultModifier),
                 R"(exprCloner\._clonesStack\.size\(\) == 1)");
}

TEST(ExprTransformationsDeathTest, AParentWithoutItsChildrenMakesNoTree)
{
    const Plus plus{number(1), number(2)};
    EXPECT_DEATH(cloneToSyntaxTree({plus.getArg1().get(), &plus}, defaultModifier),
                 R"(DOM_ExprTransformations\.cpp:[0-9]+: _clonesStack\.size\(\) >= elements)");
}

TEST(ExprTransformationsDeathTest, ANullNodeMakesNoTree)
{
    EXPECT_DEATH(cloneToSyntaxTree({nullptr}, defaultModifier), "Utils/Public/Ptr/PtrUtils:254: plainPtr");
}

TEST(ExprTransformationsTest, TheFirstAndTheLastArgumentAreBothInsideTheRange)
{
    FunctionCall call(FormulaFunctionType(1), "F", args(number(1), number(2), number(3)));
    const auto [first, last] = getBeginLastArgsIters(call);
    EXPECT_EQ(&*first, &call.getArgs()[0]);
    EXPECT_EQ(&*last, &call.getArgs()[2]);
    const auto [constFirst, constLast] = getBeginLastArgsIters(std::as_const(call));
    EXPECT_EQ(&*constFirst, &call.getArgs()[0]);
    EXPECT_EQ(&*constLast, &call.getArgs()[2]);

    UnaryMinus minus{number(1)};
    const auto [only, alsoOnly] = getBeginLastArgsIters(minus);
    EXPECT_EQ(&*only, &minus.getArg());
    EXPECT_EQ(only, alsoOnly);
}

TEST(ExprTransformationsDeathTest, ANodeWithoutArgumentsHasNoFirst)
{
    FunctionCall call;
    EXPECT_DEATH(getBeginLastArgsIters(call), R"(argsRange\.begin\(\) != end)");
    EXPECT_DEATH(getBeginLastArgsIters(std::as_const(call)), R"(argsRange\.begin\(\) != end)");
}

TEST(ExprTransformationsTest, TheDefaultsReturnTheirArguments)
{
    auto expr = number(1);
    const Expr* const address = expr.get();
    EXPECT_EQ(defaultModifier(std::move(expr)).get(), address);
    EXPECT_EQ(resolveURLByDefault("file:///other"), "file:///other");
    EXPECT_EQ(resolveURLByDefault(""), "");
}

} // namespace QN::DOM::FormulaSyntaxTree::ExprTransformationsTest
