#include "DOM/DOM_SpecialCharacter.h"

#include <gtest/gtest.h>

#include "Utils/Public/UTF8.h"

namespace QN::DOM::SpecialCharacterTest {
namespace {

TEST(DOM_SpecialCharacter, StandsInThePrivateUseArea)
{
    EXPECT_EQ(static_cast<unsigned>(SpecialCharacter::Drawing), 57344U);
    EXPECT_EQ(static_cast<unsigned>(SpecialCharacter::Bookmark), 57345U);
    EXPECT_EQ(static_cast<unsigned>(SpecialCharacter::Field), 57346U);
    EXPECT_EQ(static_cast<unsigned>(SpecialCharacter::Anchor), 57347U);
}

TEST(DOM_SpecialCharacter, IsEncodedInThreeBytes)
{
    EXPECT_EQ(getSpecialCharAsUTF8(SpecialCharacter::Drawing), "\xEE\x80\x80");
    EXPECT_EQ(getSpecialCharAsUTF8(SpecialCharacter::Bookmark), "\xEE\x80\x81");
    EXPECT_EQ(getSpecialCharAsUTF8(SpecialCharacter::Field), "\xEE\x80\x82");
    EXPECT_EQ(getSpecialCharAsUTF8(SpecialCharacter::Anchor), "\xEE\x80\x83");
}

TEST(DOM_SpecialCharacter, ANumberThatIsNoCodePointThrows)
{
    EXPECT_THROW(getSpecialCharAsUTF8(static_cast<SpecialCharacter>(0x110000)), BadCodePointError);
}

} // namespace
} // namespace QN::DOM::SpecialCharacterTest
