#include "Utils/Public/Archive/JSONOutputArchive.h"

#include <gtest/gtest.h>

#include <ios>
#include <ostream>
#include <sstream>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

#include "Support/Chain.h"
#include "Support/TestFamily.h"
#include "Support/ValueText.h"
#include "Utils/Public/Archive/JSONArchives.h"

namespace QN::JSONOutputArchiveTest {

namespace {

using cereal::JSONOutputArchive;
using cereal::make_nvp;
using namespace QN::Test;

/// Two values without names.
struct Nameless {
    int first = 1;
    int second = 2;
    void serialize(JSONOutputArchive& archive) const { archive(first, second); }
};

template <class... Ts>
std::string save(const Ts&... values)
{
    std::ostringstream stream;
    {
        JSONOutputArchive archive(stream);
        archive(values...);
    }
    return stream.str();
}

template <class T>
std::string saveError(const T& value, std::size_t nestingLimit)
{
    std::ostringstream stream;
    JSONOutputArchive archive(stream, {.nestingLimit = nestingLimit});
    try {
        archive.member("object", value);
    } catch (const cereal::Exception& error) {
        return error.what();
    }
    return "<saved>";
}

/// Takes a number of bytes and then refuses all others.
class FullDisk : public std::streambuf {
public:
    explicit FullDisk(std::streamsize room) : _room(room) {}

private:
    std::streamsize xsputn(const char*, std::streamsize count) override
    {
        const std::streamsize taken = std::min(count, _room);
        _room -= taken;
        return taken;
    }
    int_type overflow(int_type) override { return traits_type::eof(); }

    std::streamsize _room;
};

TEST(JSONOutputArchiveTest, RootIsAnObject)
{
    EXPECT_EQ(save(), "{}");
    EXPECT_EQ(save(make_nvp("a", 1)), R"({"a":1})");
}

TEST(JSONOutputArchiveTest, NamedValuesStandUnderTheirNames)
{
    const std::string text = "t";
    EXPECT_EQ(save(make_nvp("b", text), make_nvp("a", std::vector<int>{1, 2})), R"({"b":"t","a":[1,2]})");
}

TEST(JSONOutputArchiveTest, NamesThatNeedItAreEscaped)
{
    EXPECT_EQ(save(make_nvp("a\"b\\c\n", 1), make_nvp("", 2)), R"({"a\"b\\c\n":1,"":2})");
}

TEST(JSONOutputArchiveTest, ValuesWithoutNamesAreCountedInEachObjectFromZero)
{
    EXPECT_EQ(save(7, Nameless(), true), R"({"value0":7,"value1":{"value0":1,"value1":2},"value2":true})");
}

TEST(JSONOutputArchiveTest, OnlyValuesWithoutNamesAreCounted)
{
    EXPECT_EQ(save(7, make_nvp("a", 8), 9, make_nvp("value", 10)),
              R"({"value0":7,"a":8,"value1":9,"value":10})");
}

TEST(JSONOutputArchiveTest, CountGoesBeyondOneDigit)
{
    EXPECT_EQ(save(0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1),
              R"({"value0":0,"value1":0,"value2":0,"value3":0,"value4":0,"value5":0,"value6":0,"value7":0,)"
              R"("value8":0,"value9":0,"value10":1})");
}

TEST(JSONOutputArchiveTest, ElementsOfAnArrayHaveNoNames)
{
    std::ostringstream stream;
    {
        JSONOutputArchive archive(stream);
        archive.writeKey("list");
        archive.startArray();
        archive(1, make_nvp("name", 2), Nameless());
        archive.endArray();
        archive(3);
    }
    EXPECT_EQ(stream.str(), R"({"list":[1,2,{"value0":1,"value1":2}],"value0":3})");
}

TEST(JSONOutputArchiveTest, ThereAreNoSpacesBetweenTokens)
{
    Group group;
    group._items.push_back(std::make_unique<Word>("word", 12.5));
    group._items.push_back(std::make_unique<Dot>());
    group._items.push_back(nullptr);
    const std::string text = save(make_nvp("group", group), std::vector<std::vector<int>>{{}, {1, 2}});
    EXPECT_EQ(text.find_first_of(" \t\r\n"), std::string::npos) << text;
}

TEST(JSONOutputArchiveTest, CallsCanBeChained)
{
    std::ostringstream stream;
    {
        JSONOutputArchive archive(stream);
        archive(1)(make_nvp("a", 2))(3);
    }
    EXPECT_EQ(stream.str(), R"({"value0":1,"a":2,"value1":3})");
}

TEST(JSONOutputArchiveTest, NumbersHaveAllTheirPlacesByDefault)
{
    EXPECT_EQ(toText(1.0 / 3), "0.3333333333333333");
    EXPECT_EQ(toText(1e-7), "1e-7");
}

TEST(JSONOutputArchiveTest, DecimalPlacesAreAnOption)
{
    EXPECT_EQ(toText(0.1234, {.decimalPlaces = 2}), "0.12");
    EXPECT_EQ(toText(0.1234, {.decimalPlaces = 4}), "0.1234");
    EXPECT_EQ(toText(12345.5, {.decimalPlaces = 1}), "12345.5");
    EXPECT_EQ(toText(36.0F, {.decimalPlaces = 1}), "36.0");
    EXPECT_EQ(toText(0.0001, {.decimalPlaces = 3}), "0.0");
    EXPECT_EQ(toText(12345, {.decimalPlaces = 1}), "12345");
}

TEST(JSONOutputArchiveTest, DigitsBeyondTheDecimalPlacesAreCutOffAndNotRounded)
{
    EXPECT_EQ(toText(0.999, {.decimalPlaces = 2}), "0.99");
    EXPECT_EQ(toText(-1.999, {.decimalPlaces = 1}), "-1.9");
    EXPECT_EQ(toText(0.0999, {.decimalPlaces = 1}), "0.0");
    EXPECT_EQ(toText(9e-7, {.decimalPlaces = 3}), "0.0");
}

TEST(JSONOutputArchiveTest, NumberWithAnExponentKeepsAllItsDigits)
{
    EXPECT_EQ(toText(1.2345e25, {.decimalPlaces = 1}), "1.2345e25");
    EXPECT_EQ(toText(1.2345e-8, {.decimalPlaces = 10}), "1.2345e-8");
}

TEST(JSONOutputArchiveTest, TextIsCompleteOnceTheArchiveIsDestroyed)
{
    std::ostringstream stream;
    {
        JSONOutputArchive archive(stream);
        archive(1);
        EXPECT_NE(stream.str(), R"({"value0":1})");
    }
    EXPECT_EQ(stream.str(), R"({"value0":1})");
}

TEST(JSONOutputArchiveTest, TextFollowsWhatTheStreamHoldsAlready)
{
    std::ostringstream stream;
    stream << "before ";
    {
        JSONOutputArchive archive(stream);
    }
    stream << " after";
    EXPECT_EQ(stream.str(), "before {} after");
}

TEST(JSONOutputArchiveTest, TextOfAnyLengthIsWhole)
{
    // Long enough for many fillings of a buffer, with elements of all lengths at its ends.
    std::vector<std::vector<int>> values;
    std::string expected = "[";
    for (int count = 0; count < 400; ++count) {
        values.emplace_back(static_cast<std::size_t>(count), count);
        expected += count == 0 ? "[" : ",[";
        for (int index = 0; index < count; ++index) {
            expected += (index == 0 ? "" : ",") + std::to_string(count);
        }
        expected += "]";
    }
    EXPECT_EQ(toText(values), expected + "]");
}

TEST(JSONOutputArchiveTest, ValuesNestUpToTheLimitOfTheOptions)
{
    const std::vector<std::vector<std::vector<int>>> deep{{{1}}};
    EXPECT_EQ(saveError(deep, 3), "<saved>");
    EXPECT_EQ(saveError(deep, 2), "Nesting limit of 2 reached during save");
    EXPECT_EQ(saveError(std::vector<Nameless>(5), 2), "<saved>");
    EXPECT_EQ(saveError(std::vector<Nameless>(5), 1), "Nesting limit of 1 reached during save");
    EXPECT_EQ(saveError(1, 0), "<saved>");
}

TEST(JSONOutputArchiveTest, DefaultLimitLetsDeepObjectsThrough)
{
    constexpr std::size_t Links = 1300;
    static_assert(Links * Chain::NestingOfLink < cereal::DefaultNestingLimit);
    EXPECT_EQ(toText(Chain(Links)), Chain::makeText(Links));
}

TEST(JSONOutputArchiveTest, DefaultLimitStopsBeforeTheStackDoes)
{
    EXPECT_EQ(saveError(Chain(200000), cereal::DefaultNestingLimit),
              "Nesting limit of 4096 reached during save");
}

TEST(JSONOutputArchiveTest, LimitCanBeRaised)
{
    constexpr std::size_t Links = 2500;
    EXPECT_EQ(toText(Chain(Links), {.nestingLimit = (Links + 1) * Chain::NestingOfLink}),
              Chain::makeText(Links));
}

TEST(JSONOutputArchiveTest, KeyLargerThanTheBufferIsWrittenWhole)
{
    const std::string key(300000, 'k');
    std::ostringstream stream;
    {
        cereal::JSONOutputArchive archive(stream);
        archive.member("a", 1);
        archive.member(key, 2);
    }
    EXPECT_EQ(stream.str(), "{\"a\":1,\"" + key + "\":2}");
}

TEST(JSONOutputArchiveTest, ArchiveGivenUpBecauseOfAnExceptionIsDestroyedAndLeavesNoWholeText)
{
    std::ostringstream stream;
    EXPECT_THROW(
        {
            JSONOutputArchive archive(stream);
            archive(1, std::vector<std::unique_ptr<Item>>(2), Nameless());
            std::vector<std::unique_ptr<Item>> items;
            items.push_back(std::make_unique<Stranger>());
            archive(items);
        },
        cereal::Exception);
    EXPECT_NE(loadError<Chain>(stream.str()), "<loaded>");
    EXPECT_NE(stream.str().back(), '}');
}

TEST(JSONOutputArchiveTest, StreamWithoutABufferReportsTheFailureItself)
{
    std::ostream stream(nullptr);
    {
        JSONOutputArchive archive(stream);
        archive(1, std::string(200000, 'x'));
    }
    EXPECT_TRUE(stream.bad());
}

TEST(JSONOutputArchiveTest, FullDiskIsReportedByTheStream)
{
    FullDisk disk(1000);
    std::ostream stream(&disk);
    {
        JSONOutputArchive archive(stream);
        archive(std::string(5000, 'x'));
    }
    EXPECT_TRUE(stream.bad());
}

TEST(JSONOutputArchiveTest, ExceptionOfTheStreamPassesThroughButNotOutOfTheDestructor)
{
    FullDisk disk(0);
    std::ostream stream(&disk);
    stream.exceptions(std::ios_base::badbit);
    {
        JSONOutputArchive archive(stream);
        archive(1);
        EXPECT_THROW(archive(std::vector<std::string>(10, std::string(50000, 'x'))), std::ios_base::failure);
    }
    {
        JSONOutputArchive archive(stream);
    }
    EXPECT_TRUE(stream.bad());
}

TEST(JSONOutputArchiveTest, NothingThatAStreamThrowsLeavesTheDestructor)
{
    struct Thrower : std::streambuf {
        std::streamsize xsputn(const char*, std::streamsize) override { throw 7; }
    };
    Thrower thrower;
    std::ostream stream(&thrower);
    stream.exceptions(std::ios_base::badbit);
    {
        JSONOutputArchive archive(stream);
    }
    EXPECT_TRUE(stream.bad());
}

} // namespace

} // namespace QN::JSONOutputArchiveTest
