#include "Utils/Public/Assert.h"

#include <gtest/gtest.h>

#include <string>

namespace QN::AssertTest {

namespace {

TEST(AssertDeathTest, FailedCheckReportsFileLineAndExpression)
{
    EXPECT_DEATH(QN::doFailAssert("DOM/SomeFile", 12, "value"), "DOM/SomeFile:12: value\n");
}

TEST(AssertDeathTest, FailedCheckReportsItsMessage)
{
    EXPECT_DEATH(QN::doFailAssert("DOM/SomeFile", 12, "value", "of no use"),
                 "DOM/SomeFile:12: value: of no use\n");
}

TEST(AssertDeathTest, MessageIsTakenByItsLengthAndNotByATerminator)
{
    const std::string message = "of no use";
    EXPECT_DEATH(QN::doFailAssert("DOM/SomeFile", 12, "value", boost::string_ref(message).substr(0, 5)),
                 "DOM/SomeFile:12: value: of no\n");
}

TEST(AssertDeathTest, BrokenContractReportsItsFixedPlaceAndText)
{
    EXPECT_DEATH(QN_CONTRACT(false, "DOM/SomeFile", 7, "isReady()"), "DOM/SomeFile:7: isReady\\(\\)\n");
    EXPECT_DEATH(QN_CONTRACT_MESSAGE(false, "DOM/SomeFile", 7, "isReady()", "too early"),
                 "DOM/SomeFile:7: isReady\\(\\): too early\n");
}

TEST(AssertDeathTest, BrokenAssertionReportsWhereItStands)
{
    const std::string place = "tests/Utils/Public/AssertTest.cpp:";
    // A line each: where a macro stands that goes over several lines is the compiler's choice.
    const auto fail = [] { QN_ASSERT(1 + 1 == 3); };
    const int line = __LINE__ - 1;
    EXPECT_DEATH(fail(), place + std::to_string(line) + ": 1 \\+ 1 == 3\n");
    const auto failWithMessage = [] { QN_ASSERT_MESSAGE(1 + 1 == 3, "sum", "is two"); };
    const int lineWithMessage = __LINE__ - 1;
    EXPECT_DEATH(failWithMessage(), place + std::to_string(lineWithMessage) + ": sum: is two\n");
}

TEST(AssertTest, ContractThatHoldsEvaluatesItsConditionOnce)
{
    int evaluations = 0;
    QN_CONTRACT(++evaluations > 0, "DOM/SomeFile", 7, "isReady()");
    EXPECT_EQ(evaluations, 1);
    QN_ASSERT(++evaluations > 0);
    EXPECT_EQ(evaluations, 2);
}

TEST(AssertTest, ContractHoldsForAnythingThatConvertsToTrueExplicitly)
{
    struct Flag {
        explicit operator bool() const { return true; }
    };
    QN_CONTRACT(Flag{}, "DOM/SomeFile", 7, "flag");
    QN_CONTRACT_MESSAGE(Flag{}, "DOM/SomeFile", 7, "flag", "is not set");
}

} // namespace

} // namespace QN::AssertTest
