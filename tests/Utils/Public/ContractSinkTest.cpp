#include "Utils/Public/ContractSink.h"

#include <gtest/gtest.h>

#include <string>

namespace QN::ContractSinkTest {
namespace {

/// Says twice what it expects of a number.
void checkNumber(int number, const ContractSink& sink)
{
    QN_REPORT_UNLESS(number > 0, sink);
    QN_REPORT_UNLESS(number < 10, sink);
}

TEST(ContractSinkTest, TakesEachBrokenContractAndGoesOn)
{
    std::string texts;
    const auto collect = [&](const char* file, int line, const char* expression) {
        EXPECT_TRUE(std::string(file).ends_with("ContractSinkTest.cpp"));
        EXPECT_GT(line, 0);
        texts += std::string(expression) + "; ";
    };
    checkNumber(5, collect);
    EXPECT_EQ(texts, "");
    checkNumber(0, collect);
    checkNumber(10, collect);
    EXPECT_EQ(texts, "number > 0; number < 10; ");
}

TEST(ContractSinkTest, StopsAtTheFirstBrokenContractAsAnAssertionDoes)
{
    checkNumber(5, stopAtContract);
    EXPECT_DEATH(checkNumber(0, stopAtContract), "ContractSinkTest.cpp:[0-9]+: number > 0\n");
    EXPECT_DEATH(checkNumber(10, stopAtContract), "ContractSinkTest.cpp:[0-9]+: number < 10\n");
}

} // namespace
} // namespace QN::ContractSinkTest
