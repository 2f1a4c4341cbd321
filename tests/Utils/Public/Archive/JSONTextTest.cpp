#include "Utils/Public/Archive/JSONText.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstring>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "Support/ValueText.h"
#include "Utils/Public/Archive/RapidJSON.h"

namespace QN::JSONTextTest {

/// Strings are any bytes: pictures live in them.

namespace {

using namespace QN::Test;
using namespace std::string_literals;

/// What a JSON string cannot hold as it is, the bytes next to those, and bytes that are no UTF-8.
const std::string Delicate = "\0\x01\b\t\n\x0B\f\r\x1F !\"#[\\]/\x7F\x80\xC0\xFF"s;

std::uint64_t asWord(const std::string& bytes)
{
    std::uint64_t word = 0;
    std::memcpy(&word, bytes.data(), sizeof word);
    return word;
}

bool isSpecial(char c)
{
    return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\';
}

/// Saves and loads the strings in one text.
void expectReturn(const std::vector<std::string>& strings)
{
    const std::string text = toText(strings);
    const auto loaded = fromText<std::vector<std::string>>(text);
    ASSERT_EQ(loaded.size(), strings.size());
    for (std::size_t index = 0; index < strings.size(); ++index) {
        ASSERT_EQ(loaded[index], strings[index]) << index;
    }
    rapidjson::Document document;
    document.Parse<rapidjson::kParseDefaultFlags>(text.data(), text.size());
    ASSERT_FALSE(document.HasParseError());
    for (std::size_t index = 0; index < strings.size(); ++index) {
        const auto& value = document[static_cast<rapidjson::SizeType>(index)];
        ASSERT_EQ(std::string_view(value.GetString(), value.GetStringLength()), strings[index]) << index;
    }
}

TEST(JSONTextTest, FindsNoSpecialByteWhereThereIsNone)
{
    for (int code = 0; code < 256; ++code) {
        const auto c = static_cast<char>(code);
        EXPECT_EQ(cereal::detail::findSpecialBytes(asWord(std::string(8, c))) == 0, !isSpecial(c)) << code;
    }
}

TEST(JSONTextTest, FindsTheFirstSpecialByteOfAWord)
{
    std::mt19937 random(42);
    for (int round = 0; round < 100000; ++round) {
        std::string bytes(8, ' ');
        std::size_t first = 8;
        for (std::size_t index = 8; index-- > 0;) {
            bytes[index] =
                random() % 3 == 0 ? Delicate[random() % Delicate.size()] : static_cast<char>(random());
            first = isSpecial(bytes[index]) ? index : first;
        }
        const std::uint64_t found = cereal::detail::findSpecialBytes(asWord(bytes));
        ASSERT_EQ(found == 0 ? 8U : static_cast<unsigned>(std::countr_zero(found)) / 8, first);
    }
}

TEST(JSONTextTest, PlainStringStandsBetweenQuotes)
{
    expectText(""s, "\"\"");
    expectText("Hello, world/"s, "\"Hello, world/\"");
    expectText("\x7F"s, "\"\x7F\"");
}

TEST(JSONTextTest, Utf8IsNotEscaped)
{
    expectText("gr\xC3\xBC\xC3\x9F dich \xE2\x82\xAC \xF0\x9F\x98\x80"s,
               "\"gr\xC3\xBC\xC3\x9F dich \xE2\x82\xAC \xF0\x9F\x98\x80\"");
}

TEST(JSONTextTest, QuotesBackslashesAndControlCharactersAreEscaped)
{
    expectText("a\"b\\c"s, R"("a\"b\\c")");
    expectText("\b\f\n\r\t"s, R"("\b\f\n\r\t")");
    expectText("\0\x01\x1F"s, R"("\u0000\u0001\u001F")");
}

TEST(JSONTextTest, EveryByteComesBack)
{
    std::vector<std::string> strings;
    for (int code = 0; code < 256; ++code) {
        strings.emplace_back(1, static_cast<char>(code));
        strings.push_back("before"s + static_cast<char>(code) + "and after");
    }
    expectReturn(strings);
}

TEST(JSONTextTest, NothingIsCutAtANul)
{
    EXPECT_EQ(fromText<std::string>(toText("a\0b\0"s)), "a\0b\0"s);
    EXPECT_EQ(fromText<std::string>(toText(std::string(3, '\0'))).size(), 3U);
}

TEST(JSONTextTest, EveryDelicateByteComesBackFromAnyPlaceOfAnyShortString)
{
    std::vector<std::string> strings;
    for (std::size_t length = 1; length <= 26; ++length) {
        for (std::size_t place = 0; place < length; ++place) {
            for (const char c : Delicate) {
                strings.emplace_back(length, 'x');
                strings.back()[place] = c;
            }
        }
    }
    expectReturn(strings);
}

TEST(JSONTextTest, RandomBytesComeBack)
{
    std::mt19937 random(1);
    std::vector<std::string> strings;
    for (int round = 0; round < 3000; ++round) {
        std::string& bytes = strings.emplace_back(random() % 70, '\0');
        for (char& c : bytes) {
            c = random() % 2 == 0 ? Delicate[random() % Delicate.size()] : static_cast<char>(random());
        }
    }
    expectReturn(strings);
}

TEST(JSONTextTest, LongStringsComeBack)
{
    for (const std::size_t length :
         {10922U, 10923U, 21844U, 65535U, 65536U, 65537U, 100000U, 131072U, 1000000U}) {
        for (const char c : {'x', '"', '\0', '\xFF'}) {
            expectReturn({std::string(length - 1, c), std::string(length, c), std::string(length + 1, c)});
        }
    }
}

TEST(JSONTextTest, DelicateBytesComeBackFromAllPlacesOfALongText)
{
    // One string whose specials stand at ever other offsets from the start of the text.
    std::string bytes;
    for (std::size_t index = 0; bytes.size() < 300000; ++index) {
        bytes.append(index % 97, 'y');
        bytes += Delicate[index % Delicate.size()];
    }
    expectReturn({bytes, bytes.substr(1), bytes.substr(5), bytes.substr(70000)});
}

TEST(JSONTextTest, ManyShortStringsMakeALongText)
{
    expectReturn(std::vector<std::string>(30000, "abc\n"));
}

TEST(JSONTextTest, EscapesOfAnyFormAreRead)
{
    EXPECT_EQ(fromText<std::string>(R"("\u0041\/\u00fc\u20AC\uD83D\ude00")"),
              "A/\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80");
}

TEST(JSONTextTest, OnlyAStringReadsAsAString)
{
    for (const char* text : {"1", "true", "null", "[]", "[\"a\"]", "{}", "NaN"}) {
        EXPECT_EQ(typeError<std::string>(text), "IsString()") << text;
    }
}

} // namespace

} // namespace QN::JSONTextTest
