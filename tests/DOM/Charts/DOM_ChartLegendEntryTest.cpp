#include "DOM/Charts/DOM_ChartLegendEntry.h"

#include <gtest/gtest.h>

#include <limits>

#include "DOM/Charts/ChartSamples.h"

namespace QN::DOM::ChartLegendEntryTest {
namespace {

using namespace Test;

TEST(ChartLegendEntry, StandsForTheFirstRowByDefault)
{
    static_assert(!Ordered<ChartLegendEntry>);
    const ChartLegendEntry entry;
    EXPECT_EQ(entry.getIdx(), 0U);
    EXPECT_FALSE(entry.isDeleted());
    EXPECT_EQ(entry.getRunProps(), nullptr);
    expectText(entry, R"({"_idx":0,"_deleted":false,"_runProps":{"ptr_wrapper":{"id":0}}})");
}

TEST(ChartLegendEntry, KeepsEveryMember)
{
    ChartLegendEntry entry;
    entry.setIdx(std::numeric_limits<unsigned long>::max());
    entry.setDeleted(true);
    EXPECT_EQ(entry.getIdx(), std::numeric_limits<unsigned long>::max());
    EXPECT_TRUE(entry.isDeleted());
    expectText(entry,
               R"({"_idx":18446744073709551615,"_deleted":true,"_runProps":{"ptr_wrapper":{"id":0}}})");
    entry.setRunProps(makeRunProps(true));
    expectPersists(entry);
}

TEST(ChartLegendEntry, SharesItsRunPropertiesWithItsCopiesAndComparesTheirContents)
{
    expectSharesRunProps(ChartLegendEntry());
    expectEachChangeMatters(
        ChartLegendEntry(), [](ChartLegendEntry& entry) { entry.setIdx(1); },
        [](ChartLegendEntry& entry) { entry.setDeleted(true); },
        [](ChartLegendEntry& entry) { entry.setRunProps(makeRunProps(true)); });
}

TEST(ChartLegendEntry, SharedRunPropertiesStayOneObjectInAFile)
{
    const auto props = makeRunProps(true);
    std::vector<ChartLegendEntry> entries(2);
    entries[0].setRunProps(props);
    entries[1].setRunProps(props);
    const auto loaded = fromText<std::vector<ChartLegendEntry>>(toText(entries));
    EXPECT_EQ(loaded[0].getRunProps(), loaded[1].getRunProps());
    EXPECT_TRUE(*loaded[0].getRunProps() == *props);
}

} // namespace
} // namespace QN::DOM::ChartLegendEntryTest
