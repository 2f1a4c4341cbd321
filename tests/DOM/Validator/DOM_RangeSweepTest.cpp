#include "DOM/Validator/DOM_RangeSweep.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "DOM/Tables/DOM_MergedCellsCache.h"
#include "DOM/Tables/DOM_PivotTablesCache.h"
#include "DOM/Tables/TableSamples.h"

namespace QN::DOM::RangeSweepTest {
namespace {

using namespace Test;

constexpr std::uint64_t Size = 16;

class Random {
public:
    explicit Random(unsigned seed) : _engine(seed) {}
    std::uint64_t below(std::uint64_t count) { return _engine() % count; }

private:
    std::mt19937 _engine;
};

TEST(RangeSweepTest, FindsMergedRangesAsTheCacheDoesAlsoWhereTheyOverlap)
{
    for (unsigned seed = 0; seed < 500; ++seed) {
        Random random(seed);
        MergedCellsCache cache;
        for (std::uint64_t count = random.below(12); count > 0; --count) {
            const std::uint64_t row = random.below(Size);
            const std::uint64_t column = random.below(Size);
            cache.mergeCells(makeRange(row, row + 1 + random.below(6), column, column + 1 + random.below(6)));
        }
        MergedRangeSweep sweep(cache.getMergedRanges());
        for (std::uint64_t row = 0; row < Size + 6; ++row) {
            for (std::uint64_t count = 0; count < 2 * Size; ++count) {
                const ColumnIndex column(random.below(Size + 6));
                const auto expected = cache.getMergedRange(RowIndex(row), column);
                const TableRange* const found = sweep.find(RowIndex(row), column);
                ASSERT_EQ(found != nullptr, expected.has_value()) << "seed " << seed;
                if (expected) {
                    ASSERT_EQ(*found, *expected) << "seed " << seed;
                }
            }
        }
    }
}

TEST(RangeSweepTest, FindsPivotTablesAsTheCacheDoesAlsoWhereTheyOverlap)
{
    for (unsigned seed = 0; seed < 500; ++seed) {
        Random random(seed);
        PivotTablesCache cache;
        for (std::uint64_t count = random.below(12); count > 0; --count) {
            cache.addPivot(
                RowIndex(random.below(Size)), ColumnIndex(random.below(Size)),
                {static_cast<unsigned>(1 + random.below(6)), static_cast<unsigned>(1 + random.below(6))});
        }
        PivotRangeSweep sweep(cache.getPivotRanges());
        for (std::uint64_t row = 0; row < Size + 6; ++row) {
            for (std::uint64_t count = 0; count < 2 * Size; ++count) {
                const ColumnIndex column(random.below(Size + 6));
                const auto expected = cache.getPivotRoot(RowIndex(row), column);
                const TableRange* const found = sweep.find(RowIndex(row), column);
                ASSERT_EQ(found != nullptr, expected.has_value()) << "seed " << seed;
                if (expected) {
                    ASSERT_EQ(CellIndex(found->getBeginRow(), found->getBeginColumn()), *expected)
                        << "seed " << seed;
                }
            }
        }
    }
}

TEST(RangeSweepTest, FindsNothingWithoutRanges)
{
    const std::vector<TableRange> none;
    EXPECT_EQ(MergedRangeSweep(none).find(RowIndex(0), ColumnIndex(0)), nullptr);
    EXPECT_EQ(PivotRangeSweep(none).find(RowIndex(7), ColumnIndex(7)), nullptr);
}

TEST(RangeSweepTest, TakesRangesUpToTheLargestIndexInAnyOrder)
{
    constexpr std::uint64_t Largest = std::numeric_limits<std::uint64_t>::max();
    const std::vector<TableRange> ranges{makeRange(5, Largest, 1, Largest), TableRange()};
    MergedRangeSweep merged(ranges);
    EXPECT_EQ(merged.find(RowIndex(0), ColumnIndex(Largest - 1)), &ranges[1]);
    EXPECT_EQ(merged.find(RowIndex(9), ColumnIndex(0)), &ranges[1]);
    EXPECT_EQ(merged.find(RowIndex(9), ColumnIndex(1)), &ranges[0]);
    EXPECT_EQ(merged.find(RowIndex(Largest), ColumnIndex(1)), nullptr);
    PivotRangeSweep pivots(ranges);
    EXPECT_EQ(pivots.find(RowIndex(0), ColumnIndex(Largest - 1)), &ranges[1]);
    EXPECT_EQ(pivots.find(RowIndex(9), ColumnIndex(Largest - 1)), &ranges[0]);
    EXPECT_EQ(pivots.find(RowIndex(9), ColumnIndex(Largest)), nullptr);
}

} // namespace
} // namespace QN::DOM::RangeSweepTest
