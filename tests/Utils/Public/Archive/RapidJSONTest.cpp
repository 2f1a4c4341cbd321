#include "Utils/Public/Archive/RapidJSON.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <type_traits>

namespace QN::RapidJSONTest {

namespace {

TEST(RapidJSONTest, FailedAssertionOfTheParserRaisesAnException)
{
    const rapidjson::Value number(1);
    try {
        static_cast<void>(number.MemberBegin());
        FAIL();
    } catch (const cereal::RapidJSONException& error) {
        EXPECT_STREQ(error.what(), "rapidjson internal assertion failure: IsObject()");
    }
}

TEST(RapidJSONTest, ExceptionsFormOneLine)
{
    static_assert(std::is_base_of_v<std::runtime_error, cereal::Exception>);
    static_assert(std::is_base_of_v<cereal::Exception, cereal::RapidJSONException>);
    EXPECT_STREQ(cereal::RapidJSONException("text").what(), "text");
    EXPECT_STREQ(cereal::RapidJSONException(std::string("text")).what(), "text");
}

} // namespace

} // namespace QN::RapidJSONTest
