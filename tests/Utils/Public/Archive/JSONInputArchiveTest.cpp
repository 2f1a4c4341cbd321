#include "Utils/Public/Archive/JSONInputArchive.h"

#include <gtest/gtest.h>

#include <istream>
#include <random>
#include <sstream>
#include <streambuf>
#include <string>
#include <vector>

#include "Support/Chain.h"
#include "Support/TestFamily.h"
#include "Support/ValueText.h"
#include "Utils/Public/Archive/JSONArchives.h"

namespace QN::JSONInputArchiveTest {

namespace {

using cereal::JSONInputArchive;
using cereal::make_nvp;
using namespace QN::Test;

/// Loads values in turn, each handed over as `cereal::NameValuePair` or without a name.
template <class... Ts>
void load(const std::string& json, Ts&&... values)
{
    std::istringstream stream(json);
    JSONInputArchive archive(stream);
    archive(values...);
}

/// The message of an exception of exactly the class `Error`.
template <class Error, class Function>
std::string errorOf(const Function& function)
{
    try {
        function();
    } catch (const Error& error) {
        return typeid(error) == typeid(Error) ? error.what() : "<another exception>";
    }
    return "<nothing>";
}

/// What a text raises that is no JSON, or whose root is neither an object nor an array.
const std::string ParseError = "rapidjson internal assertion failure: IsObject()";

std::string parseError(const std::string& json)
{
    return errorOf<cereal::RapidJSONException>([&] {
        std::istringstream stream(json);
        const JSONInputArchive archive(stream);
    });
}

struct Point {
    int x = 0;
    int y = 0;
    void serialize(JSONInputArchive& archive) { archive(make_nvp("x", x), make_nvp("y", y)); }
};

/// Two values without names.
struct Nameless {
    int first = 0;
    int second = 0;
    void serialize(JSONInputArchive& archive) { archive(first, second); }
};

/// Hands out its text in small pieces, as a pipe does.
class Pipe : public std::streambuf {
public:
    explicit Pipe(std::string text) : _text(std::move(text)) {}

private:
    int_type underflow() override
    {
        if (_place == _text.size()) {
            return traits_type::eof();
        }
        const std::size_t count = std::min<std::size_t>(7, _text.size() - _place);
        setg(_text.data() + _place, _text.data() + _place, _text.data() + _place + count);
        _place += count;
        return traits_type::to_int_type(*gptr());
    }

    std::string _text;
    std::size_t _place = 0;
};

TEST(JSONInputArchiveTest, NamedValuesAreReadInTheOrderOfTheText)
{
    int a = 0;
    std::string b;
    load(R"({"a":1,"b":"text"})", make_nvp("a", a), make_nvp("b", b));
    EXPECT_EQ(a, 1);
    EXPECT_EQ(b, "text");
}

TEST(JSONInputArchiveTest, NamedValuesAreFoundInAnyOrder)
{
    int a = 0;
    int b = 0;
    int c = 0;
    load(R"({"c":3,"a":1,"b":2})", make_nvp("a", a), make_nvp("b", b), make_nvp("c", c));
    EXPECT_EQ(a, 1);
    EXPECT_EQ(b, 2);
    EXPECT_EQ(c, 3);
}

TEST(JSONInputArchiveTest, KeysThatNobodyAsksForAreIgnored)
{
    Point point;
    load(R"({"w":[{"x":9}],"point":{"z":{"x":8},"x":1,"":7,"y":2,"x2":3},"p":null})",
         make_nvp("point", point));
    EXPECT_EQ(point.x, 1);
    EXPECT_EQ(point.y, 2);
}

TEST(JSONInputArchiveTest, NamesAreToldByTheirWholeLength)
{
    int a = 0;
    int ab = 0;
    load(R"({"ab":2,"abc":3,"a":1})", make_nvp("a", a), make_nvp("ab", ab));
    EXPECT_EQ(a, 1);
    EXPECT_EQ(ab, 2);
    EXPECT_EQ(errorOf<cereal::Exception>([&] { load(R"({"abc":3,"b":1})", make_nvp("ab", ab)); }),
              "JSON Parsing failed - provided NVP (ab) not found");
}

TEST(JSONInputArchiveTest, EscapedNamesAreRead)
{
    int value = 0;
    load(R"({"a\"b\u005cc":5})", make_nvp("a\"b\\c", value));
    EXPECT_EQ(value, 5);
}

TEST(JSONInputArchiveTest, ReadingContinuesBehindTheMemberThatWasFound)
{
    // The first search starts at the front, the second read stands behind "b" already.
    int b = 0;
    int a = 0;
    load(R"({"a":1,"b":2,"a":3})", make_nvp("b", b), make_nvp("a", a));
    EXPECT_EQ(b, 2);
    EXPECT_EQ(a, 3);
}

TEST(JSONInputArchiveTest, ValueCanBeReadAgain)
{
    int first = 0;
    int second = 0;
    load(R"({"a":1,"b":2})", make_nvp("a", first), make_nvp("a", second));
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 1);
}

TEST(JSONInputArchiveTest, MissingKeyRaisesTheMessageWithItsName)
{
    int value = 3;
    EXPECT_EQ(errorOf<cereal::Exception>([&] { load(R"({"a":1})", make_nvp("_style", value)); }),
              "JSON Parsing failed - provided NVP (_style) not found");
    EXPECT_EQ(errorOf<cereal::Exception>([&] { load("{}", make_nvp("", value)); }),
              "JSON Parsing failed - provided NVP () not found");
    EXPECT_EQ(value, 3);
}

TEST(JSONInputArchiveTest, KeyOfAnotherLevelIsNotTaken)
{
    int value = 0;
    EXPECT_EQ(errorOf<cereal::Exception>([&] { load(R"({"a":{"b":1}})", make_nvp("b", value)); }),
              "JSON Parsing failed - provided NVP (b) not found");
    Point point;
    EXPECT_EQ(errorOf<cereal::Exception>([&] { load(R"({"p":{"x":1},"y":2})", make_nvp("p", point)); }),
              "JSON Parsing failed - provided NVP (y) not found");
}

TEST(JSONInputArchiveTest, ValuesWithoutNamesAreFoundByTheirNumberAndNotByTheirPlace)
{
    int first = 0;
    Nameless second;
    int third = 0;
    load(R"({"value2":7,"value1":{"value1":6,"x":0,"value0":5},"a":0,"value0":4})", first, second, third);
    EXPECT_EQ(first, 4);
    EXPECT_EQ(second.first, 5);
    EXPECT_EQ(second.second, 6);
    EXPECT_EQ(third, 7);
    EXPECT_EQ(errorOf<cereal::Exception>([&] { load(R"({"value0":1,"x":2})", first, third); }),
              "JSON Parsing failed - provided NVP (value1) not found");
}

TEST(JSONInputArchiveTest, NamedValuesDoNotCount)
{
    int first = 0;
    int named = 0;
    int second = 0;
    load(R"({"value0":1,"a":2,"value1":3})", first, make_nvp("a", named), second);
    EXPECT_EQ(second, 3);
}

TEST(JSONInputArchiveTest, RootMayBeAnArrayThatIsReadByPosition)
{
    int number = 0;
    std::string text;
    Point point;
    load(R"([4,"text",{"y":2,"x":1}])", number, make_nvp("any name", text), point);
    EXPECT_EQ(number, 4);
    EXPECT_EQ(text, "text");
    EXPECT_EQ(point.x, 1);
}

TEST(JSONInputArchiveTest, ReadingPastTheEndOfAnArrayRaises)
{
    int value = 0;
    EXPECT_EQ(errorOf<cereal::Exception>([&] { load("[]", value); }), "Invalid Iterator Type!");
    EXPECT_EQ(errorOf<cereal::Exception>([&] { load("[1]", value, make_nvp("a", value)); }),
              "Invalid Iterator Type!");
}

TEST(JSONInputArchiveTest, RootMayNotBeAScalar)
{
    for (const char* json : {"1", "-1.5", "\"text\"", "true", "null", "NaN", "Infinity"}) {
        EXPECT_EQ(parseError(json), ParseError) << json;
    }
}

TEST(JSONInputArchiveTest, TextThatIsNotJSONRaises)
{
    for (const char* json : {"", " \n", "{", "}", "{\"a\"}", "{\"a\":}", "{\"a\":1,}", "{a:1}", "{'a':1}",
                             "[1,]", "{}{}", "{} x", "\xEF\xBB\xBF{}"}) {
        EXPECT_EQ(parseError(json), ParseError) << json;
    }
}

TEST(JSONInputArchiveTest, RandomBytesRaise)
{
    std::mt19937 random(19);
    const std::string tokens = "{}[]:,\"\\ 0123456789.-eEtruefalsnNIity";
    for (int round = 0; round < 20000; ++round) {
        std::string text(random() % 40, '\0');
        for (char& byte : text) {
            byte = round % 2 == 0 ? static_cast<char>(random()) : tokens[random() % tokens.size()];
        }
        const std::string error = parseError(text);
        if (text.find_first_of("{[") == std::string::npos) {
            EXPECT_EQ(error, ParseError) << text;
        } else {
            EXPECT_TRUE(error == ParseError || error == "<nothing>") << text << " " << error;
        }
    }
}

TEST(JSONInputArchiveTest, TextCutOffAnywhereRaises)
{
    Group group;
    group._items.push_back(std::make_unique<Word>("w\xC3\xB6rd \"q\"", -12.5e-30));
    group._items.push_back(nullptr);
    const std::string json = toJson(group);
    EXPECT_EQ(loadError<Group>(json), "<loaded>");
    for (std::size_t length = 0; length < json.size(); ++length) {
        EXPECT_EQ(parseError(json.substr(0, length)), ParseError) << length;
    }
}

TEST(JSONInputArchiveTest, SpaceBetweenTokensIsAllowed)
{
    Point point;
    load(" { \"p\" :\t{ \"x\" : 1 ,\r\n\"y\":2 } }\n", make_nvp("p", point));
    EXPECT_EQ(point.y, 2);
}

TEST(JSONInputArchiveTest, ContainerOfTheWrongKindRaises)
{
    EXPECT_EQ(typeError<std::vector<int>>("{}"), "IsArray()");
    EXPECT_EQ(typeError<std::vector<int>>("1"), "IsArray()");
    EXPECT_EQ(typeError<std::vector<int>>("\"1\""), "IsArray()");
    EXPECT_EQ(typeError<std::vector<std::vector<int>>>("[[],{}]"), "IsArray()");
    EXPECT_EQ(typeError<std::vector<Point>>("[[]]"), "IsObject()");
    EXPECT_EQ(typeError<Point>("[1,2]"), "IsObject()");
    EXPECT_EQ(typeError<Point>("null"), "IsObject()");
}

TEST(JSONInputArchiveTest, ValuesNestUpToTheLimitOfTheOptions)
{
    const auto loadNested = [](const char* text, std::size_t limit) {
        return errorOf<cereal::Exception>([&] {
            std::vector<std::vector<std::vector<int>>> value;
            loadText(text, value, {.nestingLimit = limit});
        });
    };
    EXPECT_EQ(loadNested("[[[1]]]", 3), "<nothing>");
    EXPECT_EQ(loadNested("[[[1]]]", 2), "Nesting limit of 2 reached during load");
    EXPECT_EQ(loadNested("[[],[],[],[]]", 2), "<nothing>");
    EXPECT_EQ(loadNested("[[],[],[],[]]", 1), "Nesting limit of 1 reached during load");
}

TEST(JSONInputArchiveTest, DefaultLimitLetsDeepObjectsThrough)
{
    EXPECT_EQ(fromText<Chain>(Chain::makeText(1300)).getLinks(), 1300U);
}

TEST(JSONInputArchiveTest, DefaultLimitStopsBeforeTheStackDoes)
{
    EXPECT_EQ(textError<Chain>(Chain::makeText(200000)), "Nesting limit of 4096 reached during load");
}

TEST(JSONInputArchiveTest, LimitCanBeRaised)
{
    constexpr std::size_t Links = 2500;
    Chain chain;
    loadText(Chain::makeText(Links), chain, {.nestingLimit = (Links + 1) * Chain::NestingOfLink});
    EXPECT_EQ(chain.getLinks(), Links);
}

TEST(JSONInputArchiveTest, WhatNobodyAsksForMayNestToAnyDepth)
{
    constexpr std::size_t Depth = 1000000;
    int value = 0;
    load(R"({"deep":)" + std::string(Depth, '[') + std::string(Depth, ']') + R"(,"a":1})",
         make_nvp("a", value));
    EXPECT_EQ(value, 1);
}

TEST(JSONInputArchiveTest, StreamWithoutABufferRaises)
{
    std::istream stream(nullptr);
    EXPECT_EQ(errorOf<cereal::RapidJSONException>([&] { const JSONInputArchive archive(stream); }),
              ParseError);
}

TEST(JSONInputArchiveTest, StreamIsReadFromWhereItStands)
{
    std::istringstream stream("before {\"a\":1}");
    std::string word;
    stream >> word;
    JSONInputArchive archive(stream);
    int value = 0;
    archive(make_nvp("a", value));
    EXPECT_EQ(value, 1);
}

TEST(JSONInputArchiveTest, StreamThatComesInPiecesIsReadToItsEnd)
{
    const std::vector<int> numbers(60000, 12345);
    Pipe pipe(R"({"object":)" + toText(numbers) + "}");
    std::istream stream(&pipe);
    JSONInputArchive archive(stream);
    std::vector<int> loaded;
    archive(make_nvp("object", loaded));
    EXPECT_EQ(loaded, numbers);
}

TEST(JSONInputArchiveTest, StringReadInPlaceLivesAsLongAsTheArchive)
{
    std::istringstream stream(R"({"a":"te\u0078t","b":1})");
    JSONInputArchive archive(stream);
    archive.seek("a");
    const std::string_view text = archive.loadString();
    int value = 0;
    archive(make_nvp("b", value));
    EXPECT_EQ(text, "text");
}

TEST(JSONInputArchiveTest, TargetIsReplacedAndNotAppendedTo)
{
    std::vector<std::string> values{"old", "older", "oldest"};
    loadText(R"(["new"])", values);
    EXPECT_EQ(values, std::vector<std::string>{"new"});
}

} // namespace

} // namespace QN::JSONInputArchiveTest
