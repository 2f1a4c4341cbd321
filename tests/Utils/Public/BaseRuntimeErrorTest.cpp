#include "Utils/Public/BaseRuntimeError.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace QN::BaseRuntimeErrorTest {

namespace {

TEST(BaseRuntimeErrorTest, IsARuntimeErrorWithTheGivenText)
{
    static_assert(std::is_base_of_v<std::runtime_error, QN::BaseRuntimeError>);
    EXPECT_STREQ(QN::BaseRuntimeError("of no use").what(), "of no use");
    EXPECT_STREQ(QN::BaseRuntimeError(std::string("of no use")).what(), "of no use");
}

} // namespace

} // namespace QN::BaseRuntimeErrorTest
