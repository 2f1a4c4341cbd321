#include "DOM/DOM_TrackChangesType.h"

#include <gtest/gtest.h>

#include "Support/RoundTrip.h"

namespace QN::DOM::TrackChangesTypeTest {
namespace {

using namespace QN::Test;

TEST(DOM_TrackChangesType, PersistsAsItsNumberNamedOrNot)
{
    EXPECT_EQ(toJson(TrackChangesType::Deletion), R"({"object":1})");
    expectRoundTrip(TrackChangesType::MoveTo);
    expectRoundTrip(static_cast<TrackChangesType>(-5));
}

} // namespace
} // namespace QN::DOM::TrackChangesTypeTest
