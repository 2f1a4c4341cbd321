#include "DOM/Charts/DOM_ChartLegend.h"

#include <gtest/gtest.h>

#include "DOM/Charts/ChartSamples.h"

namespace QN::DOM::ChartLegendTest {
namespace {

using namespace Test;

TEST(ChartLegend, SaysNothingByDefault)
{
    static_assert(sizeof(ChartLegendPosition) == 1);
    static_assert(!Ordered<ChartLegend>);
    const ChartLegend legend;
    EXPECT_FALSE(legend.getLayout());
    EXPECT_FALSE(legend.getPosition());
    EXPECT_FALSE(legend.getGraphicProps());
    EXPECT_FALSE(legend.getOverlay());
    EXPECT_TRUE(legend.getEntries().empty());
    EXPECT_EQ(legend.getRunProps(), nullptr);
    expectText(legend, R"({"_layout":{"hasValue":false},"_position":{"hasValue":false},)"
                       R"("_graphicProps":{"hasValue":false},"_overlay":{"value":-1},"_entries":[],)"
                       R"("_runProps":{"ptr_wrapper":{"id":0}}})");
}

TEST(ChartLegend, KeepsEveryMember)
{
    ChartLegend legend;
    legend.setPosition(static_cast<ChartLegendPosition>(200));
    legend.setGraphicProps(ChartGraphicProps());
    legend.setOverlay(false);
    legend.getEntries().push_back(std::make_unique<ChartLegendEntry>());
    legend.getEntries().push_back(nullptr);
    EXPECT_EQ(static_cast<int>(*legend.getPosition()), 200);
    EXPECT_TRUE(legend.getGraphicProps());
    EXPECT_EQ(legend.getOverlay(), BoolOpt(false));
    EXPECT_EQ(std::as_const(legend).getEntries()[0].getIdx(), 0U);
    expectText(legend,
               R"({"_layout":{"hasValue":false},"_position":{"hasValue":true,"value":200},"_graphicProps":)" +
                   makePresentJson(EmptyPaintJson) + R"(,"_overlay":{"value":0},"_entries":[)" +
                   makePlainJson(R"({"_idx":0,"_deleted":false,"_runProps":{"ptr_wrapper":{"id":0}}})") +
                   "," + NullPlainJson + R"(],"_runProps":{"ptr_wrapper":{"id":0}}})");
    legend.setLayout(ChartLayout());
    legend.setRunProps(makeRunProps(true));
    EXPECT_TRUE(legend.getLayout() == ChartLayout());
    expectPersists(legend);
    expectCopiesAndMoves(legend);
}

TEST(ChartLegend, IsUnequalAsSoonAsOneMemberDiffers)
{
    expectSharesRunProps(ChartLegend());
    ChartLegend legend;
    legend.getEntries().push_back(std::make_unique<ChartLegendEntry>());
    expectEachChangeMatters(
        legend, [](ChartLegend& changed) { changed.setLayout(ChartLayout()); },
        [](ChartLegend& changed) { changed.setPosition(ChartLegendPosition::Bottom); },
        [](ChartLegend& changed) { changed.setGraphicProps(ChartGraphicProps()); },
        [](ChartLegend& changed) { changed.setOverlay(true); },
        [](ChartLegend& changed) { changed.getEntries().push_back(std::make_unique<ChartLegendEntry>()); },
        [](ChartLegend& changed) { changed.getEntries()[0]->setIdx(1); },
        [](ChartLegend& changed) { changed.getEntries()[0] = nullptr; },
        [](ChartLegend& changed) { changed.setRunProps(makeRunProps(true)); });
}

TEST(ChartLegend, CopiesItsEntriesWhichShareTheirRunProperties)
{
    ChartLegend source;
    source.getEntries().push_back(std::make_unique<ChartLegendEntry>());
    source.getEntries()[0]->setRunProps(makeRunProps(true));
    ChartLegend copy(source);
    EXPECT_NE(copy.getEntries()[0].get(), source.getEntries()[0].get());
    EXPECT_EQ(copy.getEntries()[0]->getRunProps(), source.getEntries()[0]->getRunProps());
    copy.getEntries()[0]->setDeleted(true);
    EXPECT_FALSE(source.getEntries()[0]->isDeleted());
}

} // namespace
} // namespace QN::DOM::ChartLegendTest
