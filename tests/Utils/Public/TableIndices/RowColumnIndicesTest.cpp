#include "Utils/Public/TableIndices/RowColumnIndices.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "Utils/Public/TableIndices/RowColumnIndex.h"

namespace QN::RowColumnIndicesTest {

namespace {

using QN::ColumnIndex;
using QN::getDistance;
using QN::RowIndex;

constexpr std::uint64_t Max = std::numeric_limits<std::uint64_t>::max();

TEST(RowColumnIndicesTest, DistanceRunsFromTheBeginToTheEnd)
{
    EXPECT_EQ(getDistance(RowIndex(7), RowIndex(3)), 4U);
    EXPECT_EQ(getDistance(ColumnIndex(Max), ColumnIndex(0)), Max);
}

TEST(RowColumnIndicesTest, EndMayBeTheBegin)
{
    EXPECT_EQ(getDistance(RowIndex(3), RowIndex(3)), 0U);
    EXPECT_EQ(getDistance(ColumnIndex(0), ColumnIndex(0)), 0U);
}

TEST(RowColumnIndicesDeathTest, EndBeforeTheBeginBreaksTheContract)
{
    EXPECT_DEATH(getDistance(RowIndex(3), RowIndex(4)),
                 "Utils/Public/TableIndices/RowColumnIndices:29: end >= begin\n");
    EXPECT_DEATH(getDistance(ColumnIndex(0), ColumnIndex(Max)),
                 "Utils/Public/TableIndices/RowColumnIndices:29: end >= begin\n");
}

} // namespace

} // namespace QN::RowColumnIndicesTest
