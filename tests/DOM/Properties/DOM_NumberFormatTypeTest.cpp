#include "DOM/Properties/DOM_NumberFormatType.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace QN::DOM::NumberFormatTypeTest {

TEST(NumberFormatTypeTest, TheNumbersAreThoseOfFiles)
{
    static_assert(std::is_same_v<std::underlying_type_t<NumberFormatType>, unsigned char>);
    EXPECT_EQ(static_cast<int>(NumberFormatType::Decimal), 0);
    EXPECT_EQ(static_cast<int>(NumberFormatType::UpperRoman), 1);
    EXPECT_EQ(static_cast<int>(NumberFormatType::LowerRoman), 2);
    EXPECT_EQ(static_cast<int>(NumberFormatType::UpperLetter), 3);
    EXPECT_EQ(static_cast<int>(NumberFormatType::LowerLetter), 4);
    EXPECT_EQ(static_cast<int>(NumberFormatType::Bullet), 5);
}

} // namespace QN::DOM::NumberFormatTypeTest
