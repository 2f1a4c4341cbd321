#include "CollaborationUtils/Public/CU_IndexRange.h"

#include <gtest/gtest.h>

#include "Support/RoundTrip.h"

namespace QN::CollaborationUtils::CU_IndexRangeTest {
namespace {

using namespace QN::Test;

using Index = IndexIncludingTombstones;
using Range = IndexRange<Index>;

constexpr const char* BrokenInvariant = "CollaborationUtils/Public/CU_IndexRange:77: _begin < _end";

TEST(CU_IndexRange, HoldsItsBounds)
{
    const Range range(Index(2), Index(5));
    EXPECT_EQ(range.getBegin(), Index(2));
    EXPECT_EQ(range.getEnd(), Index(5));
}

TEST(CU_IndexRange, IsNotEmptyByDefault)
{
    EXPECT_EQ(Range(), Range(Index(0), Index(1)));
}

TEST(CU_IndexRange, ComparesBothBounds)
{
    EXPECT_EQ(Range(Index(1), Index(2)), Range(Index(1), Index(2)));
    EXPECT_NE(Range(Index(1), Index(2)), Range(Index(1), Index(3)));
    EXPECT_NE(Range(Index(1), Index(3)), Range(Index(2), Index(3)));
}

TEST(CU_IndexRange, WritesItsBoundsAsTaggedValues)
{
    EXPECT_EQ(toJson(Range(Index(2), Index(5))), R"({"_begin":{"_value":2},"_end":{"_value":5}})");
}

TEST(CU_IndexRange, Persists)
{
    expectPersists(Range());
    expectPersists(Range(Index(7), Index(18446744073709551615U)));
}

TEST(CU_IndexRangeDeathTest, CannotBeBuiltEmptyOrReversed)
{
    EXPECT_DEATH(Range(Index(3), Index(3)), BrokenInvariant);
    EXPECT_DEATH(Range(Index(4), Index(3)), BrokenInvariant);
}

TEST(CU_IndexRangeDeathTest, AnEmptyOrReversedRangeInAFileStopsTheProcess)
{
    EXPECT_DEATH(fromJson<Range>(R"({"_begin":{"_value":3},"_end":{"_value":3}})"), BrokenInvariant);
    EXPECT_DEATH(fromJson<Range>(R"({"_begin":{"_value":4},"_end":{"_value":3}})"), BrokenInvariant);
}

} // namespace
} // namespace QN::CollaborationUtils::CU_IndexRangeTest
