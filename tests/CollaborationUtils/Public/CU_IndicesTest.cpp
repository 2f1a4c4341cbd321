#include "CollaborationUtils/Public/CU_Indices.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "Support/RoundTrip.h"

namespace QN::CollaborationUtils::CU_IndicesTest {
namespace {

using namespace QN::Test;

TEST(CU_Indices, PositionsOfTheTwoCountingsDoNotMix)
{
    EXPECT_FALSE((std::is_convertible_v<IndexIncludingTombstones, IndexExcludingTombstones>));
    EXPECT_FALSE((std::is_constructible_v<IndexIncludingTombstones, IndexExcludingTombstones>));
    EXPECT_FALSE((std::is_convertible_v<std::uint64_t, IndexIncludingTombstones>));
}

TEST(CU_Indices, APositionIsWrittenAsAnObjectOfItsValue)
{
    EXPECT_EQ(toJson(IndexIncludingTombstones(18446744073709551615U)),
              R"({"object":{"_value":18446744073709551615}})");
    EXPECT_EQ(toJson(IndexExcludingTombstones(3)), R"({"object":{"_value":3}})");
}

} // namespace
} // namespace QN::CollaborationUtils::CU_IndicesTest
