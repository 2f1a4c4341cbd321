#include "DOM/Properties/DOM_ScriptPosition.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "Support/RoundTrip.h"

namespace QN::DOM::ScriptPositionTest {

using namespace Test;

static_assert(std::is_same_v<std::underlying_type_t<ScriptPosition>, unsigned char>);

TEST(ScriptPositionTest, PersistsAsItsNumberNamedOrNot)
{
    EXPECT_EQ(toJson(ScriptPosition::Subscript), R"({"object":2})");
    expectRoundTrip(ScriptPosition::Baseline);
    expectRoundTrip(static_cast<ScriptPosition>(255));
    EXPECT_NE(loadError<ScriptPosition>(R"({"object":-1})"), "<loaded>");
}

} // namespace QN::DOM::ScriptPositionTest
