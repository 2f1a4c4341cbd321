#include "DOM/PredefinedStyles/DOM_PredefinedStyleName.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace QN::DOM::PredefinedStyleNameTest {

TEST(PredefinedStyleNameTest, TheNumbersAreThoseOfFiles)
{
    static_assert(std::is_same_v<std::underlying_type_t<PredefinedStyleName>, unsigned char>);
    EXPECT_EQ(static_cast<int>(PredefinedStyleName::Normal), 0);
    EXPECT_EQ(static_cast<int>(PredefinedStyleName::Heading1), 1);
    EXPECT_EQ(static_cast<int>(PredefinedStyleName::Heading5), 5);
    EXPECT_EQ(static_cast<int>(PredefinedStyleName::Heading10), 10);
    EXPECT_EQ(static_cast<int>(PredefinedStyleName::Title), 11);
    EXPECT_EQ(static_cast<int>(PredefinedStyleName::Subtitle), 12);
    EXPECT_EQ(static_cast<int>(PredefinedStyleName::HeaderAndFooter), 13);
    EXPECT_EQ(static_cast<int>(PredefinedStyleName::Footnote), 14);
    EXPECT_EQ(static_cast<int>(PredefinedStyleName::Contents1), 15);
    EXPECT_EQ(static_cast<int>(PredefinedStyleName::Contents10), 24);
    EXPECT_EQ(static_cast<int>(PredefinedStyleName::Hyperlink), 25);
}

} // namespace QN::DOM::PredefinedStyleNameTest
