#include "DOM/Properties/DOM_ThemeColorId.h"

#include <gtest/gtest.h>

#include <array>

#include "Support/RoundTrip.h"

namespace QN::DOM::ThemeColorIdTest {

using namespace Test;

TEST(ThemeColorIdTest, IsOneByteWide)
{
    static_assert(sizeof(ThemeColorId) == 1);
}

TEST(ThemeColorIdTest, NamesTheSlotsThatTheDefaultThemeFills)
{
    const std::array Slots{ThemeColorId::Dark1,   ThemeColorId::Dark2,     ThemeColorId::Light1,
                           ThemeColorId::Light2,  ThemeColorId::Accent1,   ThemeColorId::Accent2,
                           ThemeColorId::Accent3, ThemeColorId::Accent4,   ThemeColorId::Accent5,
                           ThemeColorId::Accent6, ThemeColorId::Hyperlink, ThemeColorId::FollowedHyperlink};
    int number = 4;
    for (const ThemeColorId slot : Slots) {
        EXPECT_EQ(static_cast<int>(slot), number++);
    }
    EXPECT_EQ(number, 16);
}

TEST(ThemeColorIdTest, PersistsAsANumberWhetherItHasANameOrNot)
{
    EXPECT_EQ(toJson(ThemeColorId::Accent1), R"({"object":8})");
    EXPECT_EQ(toJson(static_cast<ThemeColorId>(200)), R"({"object":200})");
    expectRoundTrip(static_cast<ThemeColorId>(200));
}

} // namespace QN::DOM::ThemeColorIdTest
