#include "Utils/Public/UTF8.h"

#include <gtest/gtest.h>

#include <string>

namespace QN::UTF8Test {

namespace {

using QN::getUTF8String;
using QN::isEOL;

std::string getFailure(char32_t codePoint)
{
    try {
        getUTF8String(codePoint);
        return "none";
    } catch (const QN::BaseRuntimeError& error) {
        return error.what();
    }
}

TEST(UTF8Test, EncodesTheFirstAndLastCodePointOfEachLength)
{
    EXPECT_EQ(getUTF8String(0), std::string("\0", 1));
    EXPECT_EQ(getUTF8String(0x7F), "\x7f");
    EXPECT_EQ(getUTF8String(0x80), "\xc2\x80");
    EXPECT_EQ(getUTF8String(0x7FF), "\xdf\xbf");
    EXPECT_EQ(getUTF8String(0x800), "\xe0\xa0\x80");
    EXPECT_EQ(getUTF8String(0xFFFF), "\xef\xbf\xbf");
    EXPECT_EQ(getUTF8String(0x10000), "\xf0\x90\x80\x80");
    EXPECT_EQ(getUTF8String(0x10FFFF), "\xf4\x8f\xbf\xbf");
}

TEST(UTF8Test, EncodesPrivateUseCodePoints)
{
    EXPECT_EQ(getUTF8String(0xE000), "\xee\x80\x80");
    EXPECT_EQ(getUTF8String(0xD7FF), "\xed\x9f\xbf");
}

TEST(UTF8Test, RefusesWhatIsNoScalarValue)
{
    EXPECT_EQ(getFailure(0xD800), "Invalid code point");
    EXPECT_EQ(getFailure(0xDFFF), "Invalid code point");
    EXPECT_EQ(getFailure(0x110000), "Invalid code point");
    EXPECT_EQ(getFailure(0xFFFFFFFF), "Invalid code point");
}

TEST(UTF8Test, LineFeedAndCarriageReturnEndALine)
{
    EXPECT_TRUE(isEOL(10));
    EXPECT_TRUE(isEOL(13));
}

TEST(UTF8Test, UnicodeSeparatorsEndALine)
{
    EXPECT_TRUE(isEOL(0x85));
    EXPECT_TRUE(isEOL(0x2028));
    EXPECT_TRUE(isEOL(0x2029));
}

TEST(UTF8Test, NothingElseEndsALine)
{
    for (char32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint) {
        const bool ends = codePoint == 10 || codePoint == 13 || codePoint == 0x85 || codePoint == 0x2028 ||
                          codePoint == 0x2029;
        if (isEOL(codePoint) != ends) {
            ADD_FAILURE() << "code point " << static_cast<unsigned long>(codePoint);
        }
    }
}

} // namespace

} // namespace QN::UTF8Test
