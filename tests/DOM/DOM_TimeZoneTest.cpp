#include "DOM/DOM_TimeZone.h"

#include <gtest/gtest.h>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::TimeZoneTest {
namespace {

using namespace QN::Test;

TEST(DOM_TimeZone, HoldsAnOffset)
{
    EXPECT_EQ(TimeZone().getOffset(), 0);
    EXPECT_EQ(TimeZone::getUTCTimeZone(), TimeZone(0));
    TimeZone zone(-90);
    EXPECT_EQ(zone.getOffset(), -90);
    zone.setOffset(60);
    EXPECT_EQ(zone, TimeZone(60));
    expectCopiesAndMoves(zone);
}

TEST(DOM_TimeZone, ComparesItsOffset)
{
    expectAscending({TimeZone(-90), TimeZone(0), TimeZone(60)});
}

TEST(DOM_TimeZone, PersistsAnyOffsetOf32Bits)
{
    EXPECT_EQ(toJson(TimeZone()), R"({"_offset":0})");
    expectPersists(TimeZone(-2147483648));
    expectPersists(TimeZone(2147483647));
    EXPECT_EQ(loadError<TimeZone>(R"({"_offset":2147483648})"),
              "rapidjson internal assertion failure: data_.f.flags & kIntFlag");
}

} // namespace
} // namespace QN::DOM::TimeZoneTest
