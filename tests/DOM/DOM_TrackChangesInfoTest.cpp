#include "DOM/DOM_TrackChangesInfo.h"

#include <gtest/gtest.h>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::TrackChangesInfoTest {
namespace {

using namespace QN::Test;

DateTime makeDay(std::uint8_t day)
{
    return DateTime(DateTime::Year(2024), DateTime::Month(5), DateTime::Day(day), DateTime::Hour(12),
                    DateTime::Minute(30), DateTime::Second(1), TimeZone(60));
}

TEST(DOM_TrackChangesInfo, KnowsNeitherAuthorNorDateByDefault)
{
    const TrackChangesInfo info;
    EXPECT_FALSE(info.getAuthorInfo());
    EXPECT_FALSE(info.getDateTime());
    EXPECT_EQ(toJson(info), R"({"_userInfo":{"hasValue":false},"_dateTime":{"hasValue":false}})");
}

TEST(DOM_TrackChangesInfo, HoldsWhatIsSet)
{
    TrackChangesInfo info;
    info.setAuthorInfo(UserInfo("a", "b"));
    info.setDateTime(makeDay(1));
    EXPECT_EQ(info, TrackChangesInfo(UserInfo("a", "b"), makeDay(1)));
    EXPECT_EQ(*info.getAuthorInfo(), UserInfo("a", "b"));
    EXPECT_EQ(*info.getDateTime(), makeDay(1));
    expectCopiesAndMoves(info);
}

TEST(DOM_TrackChangesInfo, ComparesAuthorAndThenDate)
{
    expectAscending(
        {TrackChangesInfo(), TrackChangesInfo(boost::none, makeDay(1)),
         TrackChangesInfo(UserInfo("a", ""), boost::none), TrackChangesInfo(UserInfo("a", ""), makeDay(1)),
         TrackChangesInfo(UserInfo("a", ""), makeDay(2)), TrackChangesInfo(UserInfo("b", ""), boost::none)});
}

TEST(DOM_TrackChangesInfo, OneAuthorAtTwoDatesIsTheSameWithoutTheDate)
{
    const TrackChangesInfo first(UserInfo("a", "b"), makeDay(1));
    const TrackChangesInfo second(UserInfo("a", "b"), makeDay(2));
    EXPECT_NE(first, second);
    EXPECT_TRUE(areSameWithoutDate(first, second));
    EXPECT_TRUE(areSameWithoutDate(first, TrackChangesInfo(UserInfo("a", "b"), boost::none)));
    EXPECT_TRUE(areSameWithoutDate(TrackChangesInfo(), TrackChangesInfo(boost::none, makeDay(1))));
}

TEST(DOM_TrackChangesInfo, TwoAuthorsAreNotTheSame)
{
    const TrackChangesInfo known(UserInfo("a", "b"), makeDay(1));
    EXPECT_FALSE(areSameWithoutDate(known, TrackChangesInfo(UserInfo("a", "c"), makeDay(1))));
    EXPECT_FALSE(areSameWithoutDate(known, TrackChangesInfo(UserInfo("c", "b"), makeDay(1))));
    EXPECT_FALSE(areSameWithoutDate(known, TrackChangesInfo(boost::none, makeDay(1))));
    EXPECT_FALSE(areSameWithoutDate(TrackChangesInfo(boost::none, makeDay(1)), known));
}

TEST(DOM_TrackChangesInfo, Persists)
{
    expectPersists(TrackChangesInfo());
    expectPersists(TrackChangesInfo(UserInfo("a", "b"), makeDay(1)));
}

} // namespace
} // namespace QN::DOM::TrackChangesInfoTest
