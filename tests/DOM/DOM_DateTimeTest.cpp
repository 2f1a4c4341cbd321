#include "DOM/DOM_DateTime.h"

#include <gtest/gtest.h>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::DateTimeTest {
namespace {

using namespace QN::Test;

DateTime makeDateTime(int year, int month, int day, int hours, int minutes, int seconds, int offset)
{
    return DateTime(
        DateTime::Year(static_cast<std::uint16_t>(year)), DateTime::Month(static_cast<std::uint8_t>(month)),
        DateTime::Day(static_cast<std::uint8_t>(day)), DateTime::Hour(static_cast<std::uint8_t>(hours)),
        DateTime::Minute(static_cast<std::uint8_t>(minutes)),
        DateTime::Second(static_cast<std::uint8_t>(seconds)), TimeZone(offset));
}

TEST(DOM_DateTime, IsAllZeroByDefault)
{
    EXPECT_EQ(DateTime(), makeDateTime(0, 0, 0, 0, 0, 0, 0));
    EXPECT_EQ(toJson(DateTime()),
              R"({"_year":{"_value":0},"_month":{"_value":0},"_day":{"_value":0},"_hours":{"_value":0},)"
              R"("_minutes":{"_value":0},"_seconds":{"_value":0},"_timeZone":{"_offset":0}})");
}

TEST(DOM_DateTime, HoldsItsPartsUnchecked)
{
    const DateTime dateTime = makeDateTime(65535, 13, 32, 25, 61, 255, -5);
    EXPECT_EQ(dateTime.getYear(), DateTime::Year(65535));
    EXPECT_EQ(dateTime.getMonth(), DateTime::Month(13));
    EXPECT_EQ(dateTime.getDay(), DateTime::Day(32));
    EXPECT_EQ(dateTime.getHours(), DateTime::Hour(25));
    EXPECT_EQ(dateTime.getMinutes(), DateTime::Minute(61));
    EXPECT_EQ(dateTime.getSeconds(), DateTime::Second(255));
    EXPECT_EQ(dateTime.getTimeZone(), TimeZone(-5));
    expectCopiesAndMoves(dateTime);
}

TEST(DOM_DateTime, OneInstantInTwoTimeZonesIsUnequal)
{
    EXPECT_NE(makeDateTime(2024, 5, 1, 12, 0, 0, 0), makeDateTime(2024, 5, 1, 13, 0, 0, 1));
}

TEST(DOM_DateTime, ComparesPartByPart)
{
    expectAscending({makeDateTime(2023, 9, 9, 9, 9, 9, 9), makeDateTime(2024, 1, 9, 9, 9, 9, 9),
                     makeDateTime(2024, 2, 1, 9, 9, 9, 9), makeDateTime(2024, 2, 2, 1, 9, 9, 9),
                     makeDateTime(2024, 2, 2, 2, 1, 9, 9), makeDateTime(2024, 2, 2, 2, 2, 1, 9),
                     makeDateTime(2024, 2, 2, 2, 2, 2, 1), makeDateTime(2024, 2, 2, 2, 2, 2, 2)});
}

TEST(DOM_DateTime, Persists)
{
    expectPersists(DateTime());
    expectPersists(makeDateTime(65535, 255, 254, 253, 252, 251, -250));
}

TEST(DOM_DateTime, APartBeyondItsTypeIsRefused)
{
    std::string json = toJson(DateTime());
    json.replace(json.find(R"("_month":{"_value":0)"), 20, R"("_month":{"_value":256)");
    EXPECT_THROW(fromJson<DateTime>(json), cereal::RapidJSONException);
}

} // namespace
} // namespace QN::DOM::DateTimeTest
