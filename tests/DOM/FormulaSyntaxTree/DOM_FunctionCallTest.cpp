#include "DOM/FormulaSyntaxTree/DOM_FunctionCall.h"

#include <gtest/gtest.h>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::FunctionCallTest {

namespace {

FunctionCall makeCall()
{
    return {FormulaFunctionType(300), "SUM", args(number(1), text("a"))};
}

} // namespace

TEST(FunctionCallTest, KeepsWhatItIsMadeOf)
{
    FunctionCall call = makeCall();
    EXPECT_EQ(call.getFuncType(), FormulaFunctionType(300));
    EXPECT_EQ(call.getFuncName(), "SUM");
    ASSERT_EQ(call.getArgs().size(), 2U);
    EXPECT_TRUE(areDeeplyEqual(*std::as_const(call).getArgs()[0], Number(1)));
    EXPECT_EQ(call.getArgsRange().data(), call.getArgs().data());
    EXPECT_EQ(call.getCArgsRange().size(), 2U);
    EXPECT_EQ(FunctionCall().getFuncType(), FormulaFunctionType(0));
    EXPECT_EQ(FunctionCall().getFuncName(), "");
    EXPECT_TRUE(FunctionCall().getArgs().empty());
}

TEST(FunctionCallTest, ComparesTypeNameAndArguments)
{
    EXPECT_EQ(makeCall(), makeCall());
    EXPECT_NE(makeCall(), FunctionCall(FormulaFunctionType(301), "SUM", args(number(1), text("a"))));
    EXPECT_NE(makeCall(), FunctionCall(FormulaFunctionType(300), "sum", args(number(1), text("a"))));
    EXPECT_NE(makeCall(), FunctionCall(FormulaFunctionType(300), "SUM", args(number(1), text("b"))));
    EXPECT_NE(makeCall(), FunctionCall(FormulaFunctionType(300), "SUM", args(number(1))));
}

TEST(FunctionCallTest, CanBeMadeAgainWithOtherArguments)
{
    const auto other = makeCall().cloneWithArgs(args(number(5)));
    EXPECT_TRUE(areDeeplyEqual(*other, FunctionCall(FormulaFunctionType(300), "SUM", args(number(5)))));
}

TEST(FunctionCallTest, PersistsTypeNameAndArguments)
{
    EXPECT_EQ(toJson(FunctionCall(FormulaFunctionType(65535), "F", args(std::make_unique<Empty>()))),
              R"j({"value0":{"value0":{}},"_funcType":65535,"_funcName":"F","_args":[{"this->getPtr()":)j" +
                  pointerJson("Empty", R"({"value0":{"value0":{}}})") + "}]}");
    expectNode(std::make_unique<FunctionCall>(makeCall()));
}

TEST(FunctionCallTest, ItsTypeHasSixteenBits)
{
    EXPECT_EQ(
        loadError<FunctionCall>(R"({"value0":{"value0":{}},"_funcType":65536,"_funcName":"F","_args":[]})"),
        "rapidjson internal assertion failure: value is within the range of its type");
}

TEST(FunctionCallTest, ACallWithoutArgumentsCanBeHeldSavedLoadedAndCompared)
{
    EXPECT_EQ(toJson(FunctionCall(FormulaFunctionType(1), "NOW", {})),
              R"({"value0":{"value0":{}},"_funcType":1,"_funcName":"NOW","_args":[]})");
    expectPersists(call("NOW", {}));
    expectPersists(op<Plus>(call("NOW", {}), number(1)));
    EXPECT_TRUE(areDeeplyEqual(*call("NOW", {}), *call("NOW", {})));
}

TEST(FunctionCallDeathTest, ACallWithoutArgumentsStopsTheProcessWhenItOrATreeAroundItIsCloned)
{
    EXPECT_DEATH(clone(*call("NOW", {})), R"(argsRange\.begin\(\) != end)");
    const auto tree = op<Plus>(number(1), call("NOW", {}));
    EXPECT_DEATH(clone(*tree), R"(argsRange\.begin\(\) != end)");
}

TEST(FunctionCallTest, CanBeReplacedByACallInsideIt)
{
    FunctionCall outer(FormulaFunctionType(1), "OUTER", args(call("INNER", args(number(1))), number(2)));
    outer = std::move(static_cast<FunctionCall&>(*outer.getArgs()[0]));
    EXPECT_EQ(outer, FunctionCall(FormulaFunctionType(7), "INNER", args(number(1))));
}

} // namespace QN::DOM::FormulaSyntaxTree::FunctionCallTest
