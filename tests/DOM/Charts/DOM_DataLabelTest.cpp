#include "DOM/Charts/DOM_DataLabel.h"

#include <gtest/gtest.h>

#include <limits>

#include "DOM/Charts/ChartSamples.h"
#include "DOM/DOM_Paragraph.h"

namespace QN::DOM::DataLabelTest {
namespace {

using namespace Test;

TEST(DataLabel, StandsForTheFirstPointByDefault)
{
    static_assert(sizeof(DataLabelPosition) == 1);
    static_assert(!Ordered<DataLabel>);
    const DataLabel label;
    EXPECT_EQ(label.getIdx(), 0U);
    EXPECT_FALSE(label.isDeleted());
    EXPECT_FALSE(label.getOffset());
    EXPECT_FALSE(label.getPosition());
    EXPECT_EQ(label.getText(), nullptr);
    EXPECT_FALSE(label.getGraphicProps());
    expectText(label,
               R"({"_idx":0,"_deleted":false,"_offset":{"hasValue":false},"_position":{"hasValue":false},)"
               R"("_text":{"ptr_wrapper":{"valid":0}},"_graphicProps":{"hasValue":false}})");
}

TEST(DataLabel, KeepsEveryMember)
{
    DataLabel label;
    label.setIdx(std::numeric_limits<unsigned int>::max());
    label.setDeleted(true);
    label.setPosition(static_cast<DataLabelPosition>(200));
    label.setText(std::make_unique<TextWithTombstones>());
    label.setGraphicProps(ChartGraphicProps());
    EXPECT_EQ(label.getIdx(), std::numeric_limits<unsigned int>::max());
    EXPECT_TRUE(label.isDeleted());
    EXPECT_EQ(static_cast<int>(*label.getPosition()), 200);
    EXPECT_TRUE(label.getText()->getBlocks().empty());
    EXPECT_TRUE(label.getGraphicProps());
    expectText(label, R"({"_idx":4294967295,"_deleted":true,"_offset":{"hasValue":false},)"
                      R"("_position":{"hasValue":true,"value":200},"_text":)" +
                          makePlainJson(R"({"_blocks":[],"_tombstones":{"_tombstones":[]}})") +
                          R"(,"_graphicProps":)" + makePresentJson(EmptyPaintJson) + "}");
    label.setOffset(cinder::Vec2<float>(1.5F, -2.5F));
    EXPECT_EQ(*label.getOffset(), cinder::Vec2<float>(1.5F, -2.5F));
    label.getText()->getBlocks().push_back(std::make_unique<Paragraph>());
    expectPersists(label);
    expectCopiesAndMoves(label);
}

TEST(DataLabel, IsUnequalAsSoonAsOneMemberDiffers)
{
    DataLabel label;
    label.setText(std::make_unique<TextWithTombstones>());
    expectEachChangeMatters(
        label, [](DataLabel& changed) { changed.setIdx(1); },
        [](DataLabel& changed) { changed.setDeleted(true); },
        [](DataLabel& changed) { changed.setOffset(cinder::Vec2<float>()); },
        [](DataLabel& changed) { changed.setPosition(DataLabelPosition::BestFit); },
        [](DataLabel& changed) { changed.setText(nullptr); },
        [](DataLabel& changed) { changed.getText()->getBlocks().push_back(std::make_unique<Paragraph>()); },
        [](DataLabel& changed) { changed.setGraphicProps(ChartGraphicProps()); });
}

TEST(DataLabel, CopiesItsText)
{
    DataLabel source;
    source.setText(std::make_unique<TextWithTombstones>());
    DataLabel copy(source);
    copy.getText()->getBlocks().push_back(std::make_unique<Paragraph>());
    EXPECT_TRUE(source.getText()->getBlocks().empty());
}

} // namespace
} // namespace QN::DOM::DataLabelTest
