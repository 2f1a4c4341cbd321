#include "Utils/Public/Archive/JSONTape.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "Utils/Public/Archive/RapidJSON.h"

namespace QN::JSONTapeTest {

namespace {

using cereal::RapidJSONException;
using cereal::detail::JSONTape;
using cereal::detail::TapeNode;
using Kind = TapeNode::Kind;

constexpr unsigned ParseFlags = rapidjson::kParseFullPrecisionFlag | rapidjson::kParseNanAndInfFlag;

bool isParsed(const std::string& text)
{
    try {
        const JSONTape tape(text);
        return true;
    } catch (const RapidJSONException& error) {
        EXPECT_STREQ(error.what(), "rapidjson internal assertion failure: IsObject()");
        return false;
    }
}

double parseDouble(const std::string& text)
{
    const JSONTape tape(text);
    EXPECT_EQ(tape.root().kind, Kind::Double) << text;
    return std::bit_cast<double>(tape.root().payload);
}

std::string parseString(const std::string& text)
{
    const JSONTape tape(text);
    EXPECT_EQ(tape.root().kind, Kind::String) << text;
    return std::string(tape.root().string());
}

/// Compares a node with the value that another parser made of the same text.
void expectSame(const TapeNode& node, const rapidjson::Value& value)
{
    switch (node.kind) {
    case Kind::Null:
        EXPECT_TRUE(value.IsNull());
        break;
    case Kind::False:
    case Kind::True:
        ASSERT_TRUE(value.IsBool());
        EXPECT_EQ(node.kind == Kind::True, value.GetBool());
        break;
    case Kind::NonNegative:
        ASSERT_TRUE(value.IsUint64());
        EXPECT_EQ(node.payload, value.GetUint64());
        break;
    case Kind::Negative:
        ASSERT_TRUE(value.IsInt64());
        EXPECT_EQ(static_cast<std::int64_t>(node.payload), value.GetInt64());
        break;
    case Kind::Double: {
        ASSERT_TRUE(value.IsDouble());
        const double ours = std::bit_cast<double>(node.payload);
        EXPECT_TRUE(ours == value.GetDouble() || std::isnan(ours)) << ours << " " << value.GetDouble();
        break;
    }
    case Kind::String:
        ASSERT_TRUE(value.IsString());
        EXPECT_EQ(node.string(), std::string_view(value.GetString(), value.GetStringLength()));
        break;
    case Kind::Array: {
        ASSERT_TRUE(value.IsArray());
        ASSERT_EQ(node.payload, value.Size());
        const TapeNode* element = &node + 1;
        for (const auto& other : value.GetArray()) {
            expectSame(*element, other);
            element = element->next();
        }
        EXPECT_EQ(element, node.next());
        break;
    }
    case Kind::Object: {
        ASSERT_TRUE(value.IsObject());
        ASSERT_EQ(node.payload, value.MemberCount());
        const TapeNode* key = &node + 1;
        for (const auto& other : value.GetObject()) {
            expectSame(*key, other.name);
            expectSame(key[1], other.value);
            key = (key + 1)->next();
        }
        EXPECT_EQ(key, node.next());
        break;
    }
    }
}

TEST(JSONTapeTest, HoldsTheNodesOfAllValuesInTheOrderOfTheText)
{
    const JSONTape tape(R"( {"a" : [1, -2, 3.5, true] , "b":{} ,"c":null} )");
    const TapeNode& root = tape.root();
    ASSERT_EQ(root.kind, Kind::Object);
    EXPECT_EQ(root.payload, 3U);
    EXPECT_EQ(root.size, 11U);
    const TapeNode* const array = &root + 2;
    ASSERT_EQ(array->kind, Kind::Array);
    EXPECT_EQ(array->payload, 4U);
    EXPECT_EQ(array->next()->string(), "b");
}

TEST(JSONTapeTest, KeepsIntegersOf64BitsExact)
{
    EXPECT_EQ(JSONTape("18446744073709551615").root().payload, 18446744073709551615U);
    EXPECT_EQ(JSONTape("18446744073709551615").root().kind, Kind::NonNegative);
    EXPECT_EQ(static_cast<std::int64_t>(JSONTape("-9223372036854775808").root().payload),
              std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(JSONTape("-9223372036854775808").root().kind, Kind::Negative);
    EXPECT_EQ(JSONTape("-0").root().kind, Kind::NonNegative);
}

TEST(JSONTapeTest, ReadsIntegersBeyond64BitsAsDoubles)
{
    EXPECT_EQ(parseDouble("18446744073709551616"), 18446744073709551616.0);
    EXPECT_EQ(parseDouble("-9223372036854775809"), -9223372036854775808.0);
    EXPECT_EQ(parseDouble("100000000000000000000000000"), 1e26);
}

TEST(JSONTapeTest, RefusesAStringOrAContainerAboveTheLimit)
{
    constexpr std::uint32_t Limit = 4;
    EXPECT_EQ(JSONTape("\"four\"", Limit).root().string(), "four");
    EXPECT_EQ(JSONTape("[1,2,3]", Limit).root().payload, 3U);
    EXPECT_EQ(JSONTape("{\"a\":[1]}", Limit).root().payload, 1U);
    for (const char* text : {"\"fives\"", "[\"fives\"]", "[1,2,3,4]", "{\"a\":[1,2]}"}) {
        EXPECT_THROW(JSONTape(text, Limit), RapidJSONException) << text;
    }
}

TEST(JSONTapeTest, ReadsDoublesExactly)
{
    EXPECT_EQ(parseDouble("0.1"), 0.1);
    EXPECT_EQ(parseDouble("1.7976931348623157e308"), std::numeric_limits<double>::max());
    EXPECT_EQ(parseDouble("4.9406564584124654e-324"), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(parseDouble("2.2250738585072011e-308"), 2.2250738585072011e-308);
    EXPECT_TRUE(std::signbit(parseDouble("-0.0")));
}

TEST(JSONTapeTest, ReadsNumbersTooSmallForADoubleAsZero)
{
    EXPECT_EQ(parseDouble("1e-400"), 0.0);
    EXPECT_EQ(parseDouble("0.00000000000000000001e-320"), 0.0);
    EXPECT_EQ(parseDouble("1e-99999999999999999999999"), 0.0);
    EXPECT_TRUE(std::signbit(parseDouble("-1e-400")));
    EXPECT_EQ(parseDouble("0." + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(parseDouble("0." + std::string(800, '0') + "1e+400"), 0.0);
}

TEST(JSONTapeTest, RefusesNumbersTooLargeForADouble)
{
    for (const std::string& text :
         {std::string("1e309"), std::string("1e+309"), std::string("-1e309"), std::string("1000e306"),
          std::string("0.001e312"), std::string("1e99999999999999999999999"), "1" + std::string(400, '0')}) {
        EXPECT_FALSE(isParsed(text)) << text;
    }
}

TEST(JSONTapeTest, ReadsTheTokensOfNumbersThatAreNotFinite)
{
    EXPECT_TRUE(std::isnan(parseDouble("NaN")));
    EXPECT_EQ(parseDouble("Infinity"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(parseDouble("-Infinity"), -std::numeric_limits<double>::infinity());
}

TEST(JSONTapeTest, UnescapesStringsInPlace)
{
    EXPECT_EQ(parseString(R"("\"\\\/\b\f\n\r\t")"), "\"\\/\b\f\n\r\t");
    EXPECT_EQ(parseString(R"("a\u0041\u00e9\u20AC\ud83d\ude00z")"),
              "aA\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80z");
    EXPECT_EQ(parseString("\"\\u0000x\""), std::string("\0x", 2));
    EXPECT_EQ(parseString("\"0123456789 0123456789\\n0123456789 0123456789\""),
              "0123456789 0123456789\n0123456789 0123456789");
}

TEST(JSONTapeTest, KeepsBytesThatAreNoUtf8)
{
    EXPECT_EQ(parseString("\"\xFF\x80\xC0 plain\""), "\xFF\x80\xC0 plain");
}

TEST(JSONTapeTest, RefusesWhatIsNotJSON)
{
    for (const char* text : {"",
                             " ",
                             "{",
                             "}",
                             "[",
                             "]",
                             "{]",
                             "[}",
                             "[1,]",
                             "[,1]",
                             "{,}",
                             "{\"a\"}",
                             "{\"a\":}",
                             "{\"a\":1,}",
                             "{1:2}",
                             "{\"a\":1 \"b\":2}",
                             "[1 2]",
                             "01",
                             "-",
                             "+1",
                             "1.",
                             ".5",
                             "1e",
                             "1e+",
                             "-01",
                             "tru",
                             "nul",
                             "falsy",
                             "NAN",
                             "Inf",
                             "-NaN",
                             "\"",
                             "\"\\x\"",
                             "\"\\u12\"",
                             "\"\\u12G4\"",
                             "\"\\ud800\"",
                             "\"\\ud800\\n\"",
                             "\"\\ud800\\u0041\"",
                             "\"\\ud800\\ue000\"",
                             "\"\\udc00\"",
                             "\"a\nb\"",
                             "'a'",
                             "1 1",
                             "{}{}",
                             "// c\n1",
                             "[1]x",
                             "\xEF\xBB\xBF{}"}) {
        EXPECT_FALSE(isParsed(text)) << text;
    }
}

TEST(JSONTapeTest, RefusesNulBytesOutsideOfEscapes)
{
    using namespace std::string_literals;
    for (const std::string& text : {"{}\0"s, "\0{}"s, "{\"a\0\":1}"s, "[\0]"s, "1\0 2"s}) {
        EXPECT_FALSE(isParsed(text)) << text;
    }
}

TEST(JSONTapeTest, ParsesAnyNestingWithoutRecursion)
{
    constexpr std::size_t Depth = 1000000;
    EXPECT_TRUE(isParsed(std::string(Depth, '[') + std::string(Depth, ']')));
    EXPECT_FALSE(isParsed(std::string(Depth, '[')));
    std::string objects;
    for (std::size_t level = 0; level < Depth; ++level) {
        objects += "{\"a\":";
    }
    EXPECT_TRUE(isParsed(objects + "1" + std::string(Depth, '}')));
}

TEST(JSONTapeTest, AgreesWithAnotherParserOnMutatedTexts)
{
    const std::string seedText =
        R"({"_a":{"_value":36.0},"b\u0020":[1,-20,3e5,"x\n\"",true,false,null,{"":[]}],"_c":"\u20ac text"})";
    const std::string alphabet = "{}[]:,\"\\ \n0123456789.eE+-truefalsnu/b\x01\xC3xNI";
    std::mt19937 random(20240611);
    int accepted = 0;
    for (int round = 0; round < 40000; ++round) {
        std::string text = seedText;
        for (unsigned change = random() % 4; change > 0; --change) {
            const std::size_t place = random() % text.size();
            const char byte = alphabet[random() % alphabet.size()];
            switch (random() % 3) {
            case 0:
                text[place] = byte;
                break;
            case 1:
                text.insert(place, 1, byte);
                break;
            default:
                text.erase(place, 1);
            }
        }
        // The other parser also takes "Inf" and signs before NaN, and surrogates that stand alone.
        if (text.find('I') != std::string::npos || text.find('N') != std::string::npos ||
            text.find("\\ud") != std::string::npos || text.find("\\uD") != std::string::npos) {
            continue;
        }
        rapidjson::Document document;
        document.Parse<ParseFlags>(text.data(), text.size());
        ASSERT_EQ(isParsed(text), !document.HasParseError()) << text;
        if (!document.HasParseError()) {
            ++accepted;
            expectSame(JSONTape(text).root(), document);
        }
    }
    EXPECT_GT(accepted, 5000);
}

TEST(JSONTapeTest, AgreesWithAnotherParserOnRandomNumbers)
{
    std::mt19937_64 random(7);
    for (int round = 0; round < 20000; ++round) {
        std::string text = std::to_string(random() >> (random() % 64));
        if (random() % 2 == 0) {
            text.insert(0, "-");
        }
        if (random() % 2 == 0) {
            text += "." + std::to_string(random());
        }
        if (random() % 2 == 0) {
            text += "e" + std::to_string(static_cast<int>(random() % 560) - 280);
        }
        rapidjson::Document document;
        document.Parse<ParseFlags>(text.data(), text.size());
        ASSERT_EQ(isParsed(text), !document.HasParseError()) << text;
        if (!document.HasParseError()) {
            const JSONTape tape(text);
            if (tape.root().kind == Kind::Double) {
                // The other parser gives a wrong number for some zeros with an exponent.
                EXPECT_EQ(std::bit_cast<double>(tape.root().payload), std::strtod(text.c_str(), nullptr))
                    << text;
            } else {
                expectSame(tape.root(), document);
            }
        }
    }
}

} // namespace

} // namespace QN::JSONTapeTest
