#include "Utils/Public/UUID.h"

#include <boost/container_hash/hash.hpp>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <type_traits>
#include <unordered_set>
#include <vector>

namespace QN::UUIDTest {

namespace {

using QN::UUID;

constexpr const char* Text = "219be34f-66e7-4590-8db5-375443207e49";

std::string getFailure(boost::string_ref text)
{
    try {
        const UUID uuid(text);
        return "parsed as " + uuid.toString();
    } catch (const QN::BaseRuntimeError& error) {
        return error.what();
    }
}

TEST(UUIDTest, DefaultIsNilAndFalse)
{
    EXPECT_FALSE(UUID());
    EXPECT_EQ(UUID(), UUID());
    EXPECT_EQ(UUID(), UUID("00000000-0000-0000-0000-000000000000"));
    EXPECT_EQ(UUID().toString(), "00000000-0000-0000-0000-000000000000");
}

TEST(UUIDTest, AnyBitMakesItTrue)
{
    EXPECT_TRUE(UUID("00000000-0000-0000-0000-000000000001"));
    EXPECT_TRUE(UUID("80000000-0000-0000-0000-000000000000"));
    EXPECT_TRUE(UUID("00000000-0000-0001-0000-000000000000"));
    EXPECT_TRUE(UUID("00000000-0000-0000-8000-000000000000"));
}

TEST(UUIDTest, IsSixteenPlainBytes)
{
    static_assert(sizeof(UUID) == 16);
    static_assert(std::is_trivially_copyable_v<UUID>);
}

TEST(UUIDTest, TextIsReadAndWrittenUnchanged)
{
    EXPECT_EQ(UUID(Text).toString(), Text);
    EXPECT_EQ(UUID("01234567-89ab-cdef-fedc-ba9876543210").toString(),
              "01234567-89ab-cdef-fedc-ba9876543210");
    EXPECT_EQ(UUID("ffffffff-ffff-ffff-ffff-ffffffffffff").toString(),
              "ffffffff-ffff-ffff-ffff-ffffffffffff");
}

TEST(UUIDTest, UpperCaseIsReadAndWrittenInLowerCase)
{
    EXPECT_EQ(UUID("219BE34F-66E7-4590-8DB5-375443207E49"), UUID(Text));
    EXPECT_EQ(UUID("219BE34F-66E7-4590-8DB5-375443207E49").toString(), Text);
}

TEST(UUIDTest, EachDigitTakesPart)
{
    const std::string nil = UUID().toString();
    for (std::size_t position = 0; position < nil.size(); ++position) {
        if (nil[position] == '-') {
            continue;
        }
        std::string text = nil;
        text[position] = 'a';
        EXPECT_EQ(UUID(text).toString(), text);
        EXPECT_NE(UUID(text), UUID());
    }
}

TEST(UUIDTest, MalformedTextIsRefusedAndQuoted)
{
    EXPECT_EQ(getFailure(""), "Malformed UUID: \"\"");
    EXPECT_EQ(getFailure("219be34f"), "Malformed UUID: \"219be34f\"");
    EXPECT_EQ(getFailure("219be34f-66e7-4590-8db5-375443207e4"),
              "Malformed UUID: \"219be34f-66e7-4590-8db5-375443207e4\"");
    EXPECT_EQ(getFailure("219be34f-66e7-4590-8db5-375443207e49 "),
              "Malformed UUID: \"219be34f-66e7-4590-8db5-375443207e49 \"");
    EXPECT_EQ(getFailure("{19be34f-66e7-4590-8db5-375443207e4}"),
              "Malformed UUID: \"{19be34f-66e7-4590-8db5-375443207e4}\"");
    EXPECT_EQ(getFailure("219be34f66e7-4590-8db5-375443207e491"),
              "Malformed UUID: \"219be34f66e7-4590-8db5-375443207e491\"");
    EXPECT_EQ(getFailure("219be34f-66e7-4590-8db5-3754432-7e49"),
              "Malformed UUID: \"219be34f-66e7-4590-8db5-3754432-7e49\"");
}

TEST(UUIDTest, AnyForeignCharacterAtAnyPlaceIsRefused)
{
    const std::string text = Text;
    for (std::size_t position = 0; position < text.size(); ++position) {
        for (const char foreign : {'g', 'G', '/', ':', '@', '`', ' ', '\xe9'}) {
            std::string malformed = text;
            malformed[position] = foreign;
            EXPECT_EQ(getFailure(malformed), "Malformed UUID: \"" + malformed + "\"");
        }
    }
}

TEST(UUIDTest, NothingPastTheViewIsRead)
{
    const std::string text = std::string(Text) + "77";
    EXPECT_EQ(UUID(boost::string_ref(text).substr(0, 36)), UUID(Text));
}

TEST(UUIDTest, GeneratedValuesDifferAndAreNeverNil)
{
    std::set<UUID> generated;
    for (int count = 0; count < 10000; ++count) {
        const UUID uuid = UUID::generate();
        EXPECT_TRUE(uuid);
        EXPECT_TRUE(generated.insert(uuid).second);
    }
}

TEST(UUIDTest, GeneratedValuesAreOfVersionFour)
{
    for (int count = 0; count < 100; ++count) {
        const std::string text = UUID::generate().toString();
        EXPECT_EQ(text[14], '4') << text;
        EXPECT_NE(std::string("89ab").find(text[19]), std::string::npos) << text;
    }
}

TEST(UUIDTest, CombiningTheSameOperandsGivesTheSameResult)
{
    const UUID left = UUID::generate();
    const UUID right = UUID::generate();
    EXPECT_EQ(left.combine(right), left.combine(right));
    EXPECT_EQ(UUID(left).combine(UUID(right)), left.combine(right));
}

TEST(UUIDTest, CombiningAnotherOperandGivesAnotherResult)
{
    std::vector<UUID> operands{UUID(), UUID(Text), UUID::generate()};
    const std::string nil = UUID().toString();
    for (std::size_t position = 0; position < nil.size(); ++position) {
        if (nil[position] != '-') {
            for (const char digit : {'1', '2', '4', '8'}) {
                std::string text = nil;
                text[position] = digit;
                operands.emplace_back(text);
            }
        }
    }
    std::unordered_set<UUID> results;
    for (const UUID& left : operands) {
        for (const UUID& right : operands) {
            EXPECT_TRUE(results.insert(left.combine(right)).second)
                << left.toString() << " and " << right.toString() << " fall together with another pair";
        }
    }
    EXPECT_EQ(results.size(), operands.size() * operands.size());
}

TEST(UUIDTest, CombinationDiffersFromItsOperandsAndDependsOnTheirOrder)
{
    const UUID left(Text);
    const UUID right = UUID::generate();
    EXPECT_NE(left.combine(right), left);
    EXPECT_NE(left.combine(right), right);
    EXPECT_NE(left.combine(right), right.combine(left));
    EXPECT_NE(left.combine(left), UUID());
    EXPECT_NE(left.combine(UUID()), left);
    EXPECT_NE(UUID().combine(left), left);
}

TEST(UUIDTest, OrdersAsItsTextOverAllBits)
{
    const std::vector<std::string> sorted{
        "00000000-0000-0000-0000-000000000000", "00000000-0000-0000-0000-000000000001",
        "00000000-0000-0000-7fff-ffffffffffff", "00000000-0000-0000-8000-000000000000",
        "00000000-0000-0001-0000-000000000000", "7fffffff-ffff-ffff-ffff-ffffffffffff",
        "80000000-0000-0000-0000-000000000000", "ffffffff-ffff-ffff-ffff-ffffffffffff"};
    for (std::size_t left = 0; left < sorted.size(); ++left) {
        for (std::size_t right = 0; right < sorted.size(); ++right) {
            EXPECT_EQ(UUID(sorted[left]) < UUID(sorted[right]), left < right);
            EXPECT_EQ(UUID(sorted[left]) == UUID(sorted[right]), left == right);
            EXPECT_EQ(UUID(sorted[left]) <= UUID(sorted[right]), left <= right);
        }
    }
}

TEST(UUIDTest, EqualValuesHashEquallyAndOthersHardlyEver)
{
    EXPECT_EQ(hash_value(UUID(Text)), hash_value(UUID(Text)));
    EXPECT_EQ(boost::hash<UUID>{}(UUID(Text)), std::hash<UUID>{}(UUID(Text)));
    std::set<std::size_t> hashes;
    for (int count = 0; count < 1000; ++count) {
        hashes.insert(hash_value(UUID::generate()));
    }
    EXPECT_GE(hashes.size(), 999U);
}

} // namespace

} // namespace QN::UUIDTest
