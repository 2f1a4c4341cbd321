#include "DOM/Tables/DOM_BlockValue.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::BlockValueTest {

using namespace QN::Test;

namespace {

using NumberValue = BlockValue<FloatNumber>;
using ErrorValue = BlockValue<FormulaErrorType>;
using BoolValue = BlockValue<bool>;

constexpr double Infinity = std::numeric_limits<double>::infinity();

} // namespace

TEST(BlockValueTest, IsZeroByDefault)
{
    EXPECT_EQ(NumberValue().get(), FloatNumber(0));
    EXPECT_EQ(ErrorValue().get(), FormulaErrorType(0));
    EXPECT_FALSE(BoolValue().get());
}

TEST(BlockValueTest, KeepsWhatIsSet)
{
    NumberValue number(FloatNumber(1.5));
    EXPECT_EQ(number.get(), FloatNumber(1.5));
    number.set(FloatNumber(-2));
    EXPECT_EQ(number.get(), FloatNumber(-2));
    ErrorValue error(FormulaErrorType(3));
    error.set(FormulaErrorType(4));
    EXPECT_EQ(error.get(), FormulaErrorType(4));
    BoolValue boolean(true);
    boolean.set(false);
    EXPECT_FALSE(boolean.get());
}

TEST(BlockValueTest, ComparesTheValue)
{
    EXPECT_EQ(NumberValue(FloatNumber(1)), NumberValue(FloatNumber(1)));
    EXPECT_NE(NumberValue(FloatNumber(1)), NumberValue(FloatNumber(2)));
    EXPECT_NE(NumberValue(FloatNumber(2)), NumberValue(FloatNumber(1)));
    EXPECT_EQ(NumberValue(FloatNumber(0.0)), NumberValue(FloatNumber(-0.0)));
    EXPECT_EQ(ErrorValue(FormulaErrorType(1)), ErrorValue(FormulaErrorType(1)));
    EXPECT_NE(ErrorValue(FormulaErrorType(1)), ErrorValue(FormulaErrorType(2)));
    EXPECT_EQ(BoolValue(true), BoolValue(true));
    EXPECT_NE(BoolValue(true), BoolValue(false));
}

TEST(BlockValueTest, PersistsAsItsPlainValue)
{
    EXPECT_EQ(toJson(NumberValue(FloatNumber(36))), R"({"_value":36.0})");
    EXPECT_EQ(toJson(ErrorValue(FormulaErrorType(1000))), R"({"_value":1000})");
    EXPECT_EQ(toJson(BoolValue(true)), R"({"_value":true})");
    expectPersists(NumberValue(FloatNumber(0.1)));
    expectPersists(ErrorValue(FormulaErrorType(7)));
    expectPersists(BoolValue(true));
    expectCopiesAndMoves(NumberValue(FloatNumber(0.1)));
    expectCopiesAndMoves(ErrorValue(FormulaErrorType(7)));
    expectCopiesAndMoves(BoolValue(true));
}

TEST(BlockValueTest, ANumberInAFileThatIsNotFiniteRaisesAnException)
{
    for (const char* const value : {"NaN", "Infinity", "-Infinity"}) {
        EXPECT_EQ(loadError<NumberValue>(std::string(R"({"_value":)") + value + "}"),
                  "The number of a cell is not finite");
    }
}

TEST(BlockValueDeathTest, ANumberThatIsNotFiniteCannotBeSet)
{
    const std::string failure = R"(DOM_BlockValue\.cpp:[0-9]+: isfinite\(value\))";
    EXPECT_DEATH(NumberValue(FloatNumber(std::nan(""))), failure);
    EXPECT_DEATH(NumberValue(FloatNumber(Infinity)), failure);
    NumberValue number;
    EXPECT_DEATH(number.set(FloatNumber(-Infinity)), failure);
}

} // namespace QN::DOM::BlockValueTest
