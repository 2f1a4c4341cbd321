#include "DOM/Tables/DOM_RowColIDGenerator.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>

namespace QN::DOM::RowColIDGeneratorTest {
namespace {

TEST(DOM_RowColIDGenerator, DrawsNumbersFarAboveThePredefinedIdentifiers)
{
    std::set<std::uint64_t> drawn;
    std::uint64_t ones = 0;
    std::uint64_t zeros = 0;
    for (int draw = 0; draw < 1000; ++draw) {
        const std::uint64_t id = RowColIDGenerator::generate();
        EXPECT_GE(id, 2147483647U);
        drawn.insert(id);
        ones |= id;
        zeros |= ~id;
    }
    EXPECT_EQ(drawn.size(), 1000U);
    EXPECT_EQ(ones, ~std::uint64_t{0});
    EXPECT_EQ(zeros, ~std::uint64_t{0});
}

} // namespace
} // namespace QN::DOM::RowColIDGeneratorTest
