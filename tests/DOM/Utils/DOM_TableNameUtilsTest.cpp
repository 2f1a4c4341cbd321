#include "DOM/Utils/DOM_TableNameUtils.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace QN::DOM::TableNameUtilsTest {

namespace {

const std::string ForbiddenChars = ":\\/?*[]";

TEST(ValidateTableNameTest, OrdinaryNamesAreLegal)
{
    for (const char* const name :
         {"Sheet1", "a", " ", "Total (2)", "a.b,c;d!e\"f#g$h%i&j+k-l=m<n>o|p{q}r^s~t`u_v", "\xC3\x84pfel",
          "\xE2\x80\x99quoted\xE2\x80\x99"}) {
        EXPECT_TRUE(validateTableName(name)) << name;
        EXPECT_EQ(fixTableNameIfNeed(name), name);
    }
}

TEST(ValidateTableNameTest, TheEmptyNameIsLegal)
{
    EXPECT_TRUE(validateTableName(""));
    EXPECT_EQ(fixTableNameIfNeed(""), "");
}

TEST(ValidateTableNameTest, SevenCharactersAreForbiddenAnywhere)
{
    EXPECT_EQ(ForbiddenChars.size(), 7U);
    for (const char character : ForbiddenChars) {
        const std::string forbidden(1, character);
        EXPECT_FALSE(validateTableName(forbidden)) << character;
        EXPECT_FALSE(validateTableName(forbidden + "a")) << character;
        EXPECT_FALSE(validateTableName("a" + forbidden + "b")) << character;
        EXPECT_FALSE(validateTableName("a" + forbidden)) << character;
    }
}

TEST(ValidateTableNameTest, EveryOtherCharacterButTheApostropheIsLegalAnywhere)
{
    for (int code = 0; code < 256; ++code) {
        const char character = static_cast<char>(code);
        if (character != '\'' && ForbiddenChars.find(character) == std::string::npos) {
            EXPECT_TRUE(validateTableName(std::string(1, character))) << code;
        }
    }
}

TEST(ValidateTableNameTest, AnApostropheIsLegalInsideOnly)
{
    EXPECT_TRUE(validateTableName("a'b"));
    EXPECT_TRUE(validateTableName("a''b"));
    EXPECT_FALSE(validateTableName("'a"));
    EXPECT_FALSE(validateTableName("a'"));
    EXPECT_FALSE(validateTableName("'a'"));
    EXPECT_FALSE(validateTableName("'"));
    EXPECT_FALSE(validateTableName("''"));
}

TEST(FixTableNameIfNeedTest, ARunOfForbiddenCharactersBecomesOneUnderscore)
{
    EXPECT_EQ(fixTableNameIfNeed(":"), "_");
    EXPECT_EQ(fixTableNameIfNeed("::"), "_");
    EXPECT_EQ(fixTableNameIfNeed("a:/b"), "a_b");
    EXPECT_EQ(fixTableNameIfNeed(ForbiddenChars), "_");
    EXPECT_EQ(fixTableNameIfNeed("a:b/c"), "a_b_c");
    EXPECT_EQ(fixTableNameIfNeed("[a]"), "_a_");
}

TEST(FixTableNameIfNeedTest, AnApostropheIsReplacedAtEitherEnd)
{
    EXPECT_EQ(fixTableNameIfNeed("'a'"), "_a_");
    EXPECT_EQ(fixTableNameIfNeed("'a"), "_a");
    EXPECT_EQ(fixTableNameIfNeed("a'"), "a_");
    EXPECT_EQ(fixTableNameIfNeed("'"), "_");
    EXPECT_EQ(fixTableNameIfNeed("''"), "_");
    EXPECT_EQ(fixTableNameIfNeed("'''"), "_'_");
    EXPECT_EQ(fixTableNameIfNeed("'a'b'"), "_a'b_");
}

TEST(FixTableNameIfNeedTest, AnApostropheBesideAForbiddenCharacterIsReplacedOnlyAtTheEnds)
{
    EXPECT_EQ(fixTableNameIfNeed("':a"), "_a");
    EXPECT_EQ(fixTableNameIfNeed(":'a"), "_'a");
    EXPECT_EQ(fixTableNameIfNeed("a':"), "a'_");
    EXPECT_EQ(fixTableNameIfNeed("a:'"), "a_");
}

TEST(FixTableNameIfNeedTest, UnderscoresOfTheNameStay)
{
    EXPECT_EQ(fixTableNameIfNeed("_:_"), "___");
    EXPECT_EQ(fixTableNameIfNeed("a_:b"), "a__b");
}

TEST(FixTableNameIfNeedTest, OtherBytesPassUnchanged)
{
    EXPECT_EQ(fixTableNameIfNeed("\xC3\x84:\xF0\x9F\x98\x80"), "\xC3\x84_\xF0\x9F\x98\x80");
    EXPECT_EQ(fixTableNameIfNeed("\xFF:\x80"), "\xFF_\x80");
    EXPECT_EQ(fixTableNameIfNeed(std::string("\0:\0", 3)), std::string("\0_\0", 3));
}

TEST(FixTableNameIfNeedTest, TheResultIsLegalAndStaysAsItIs)
{
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::string alphabet = ForbiddenChars + "''''ab_";
    for (int round = 0; round < 2000; ++round) {
        std::string name;
        for (auto count = random() % 8; count > 0; --count) {
            name += alphabet[random() % alphabet.size()];
        }
        const std::string fixed = fixTableNameIfNeed(name);
        EXPECT_TRUE(validateTableName(fixed)) << name;
        EXPECT_EQ(fixTableNameIfNeed(fixed), fixed) << name;
        EXPECT_EQ(fixed == name, validateTableName(name)) << name;
        EXPECT_EQ(fixed.empty(), name.empty()) << name;
        EXPECT_EQ(std::count(fixed.begin(), fixed.end(), 'a'), std::count(name.begin(), name.end(), 'a'))
            << name;
    }
}

} // namespace

} // namespace QN::DOM::TableNameUtilsTest
