#include <gtest/gtest.h>

#include <cstddef>
#include <memory>

#include "DOM/Tables/TableSamples.h"
#include "Support/AllocationCount.h"

/// A sheet may hold millions of plain numbers: what each of them costs is kept small.

namespace QN::DOM::TableMemoryTest {
namespace {

using namespace QN::Test;

constexpr std::size_t Rows = 2000;
constexpr std::size_t Columns = 10;

TEST(DOM_TableMemory, OfANumberIsAtMost200BytesInThreeAllocations)
{
    Table table;
    setNumber(table, Rows - 1, Columns - 1, 0.0);
    const std::size_t allocationsBefore = getAllocationCount();
    const std::size_t bytesBefore = getLiveBytes();
    for (std::size_t row = 0; row < Rows; ++row) {
        for (std::size_t column = 0; column < Columns; ++column) {
            setNumber(table, row, column, static_cast<double>(row));
        }
    }
    constexpr std::size_t Cells = Rows * Columns;
    EXPECT_LE(getLiveBytes() - bytesBefore, 200 * Cells);
    // The storage of a chunk grows by doubling.
    EXPECT_LE(getAllocationCount() - allocationsBefore, 3 * Cells + 30);
}

TEST(DOM_TableMemory, OfACopiedNumberIsAtMost200BytesInThreeAllocations)
{
    const Table table = makeGrid(Rows, Columns);
    const std::size_t bytesBefore = getLiveBytes();
    std::unique_ptr<Table> copy;
    const std::size_t allocations = countAllocations([&] { copy = std::make_unique<Table>(table); });
    EXPECT_LE(getLiveBytes() - bytesBefore, 200 * Rows * Columns);
    EXPECT_LE(allocations, 3 * Rows * Columns + 30);
}

TEST(DOM_TableMemory, OfACellWithoutANumberIsOneAllocation)
{
    EXPECT_EQ(countAllocations([] { const Cell cell; }), 0U);
    EXPECT_LE(sizeof(Cell), 72U);
}

} // namespace
} // namespace QN::DOM::TableMemoryTest
