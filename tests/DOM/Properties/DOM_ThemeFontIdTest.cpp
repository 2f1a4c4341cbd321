#include "DOM/Properties/DOM_ThemeFontId.h"

#include <gtest/gtest.h>

#include "Support/RoundTrip.h"

namespace QN::DOM::ThemeFontIdTest {

using namespace Test;

TEST(ThemeFontIdTest, PersistsAsItsNumberNamedOrNot)
{
    EXPECT_EQ(toJson(ThemeFontId::Major), R"({"object":0})");
    EXPECT_EQ(toJson(ThemeFontId::Minor), R"({"object":1})");
    expectRoundTrip(static_cast<ThemeFontId>(77));
    expectRoundTrip(static_cast<ThemeFontId>(-1));
}

} // namespace QN::DOM::ThemeFontIdTest
