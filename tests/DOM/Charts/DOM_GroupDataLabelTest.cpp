#include "DOM/Charts/DOM_GroupDataLabel.h"

#include <gtest/gtest.h>

#include "DOM/Charts/ChartSamples.h"

namespace QN::DOM::GroupDataLabelTest {
namespace {

using namespace Test;

TEST(GroupDataLabel, SaysNothingByDefault)
{
    static_assert(!Ordered<GroupDataLabel>);
    const GroupDataLabel label;
    EXPECT_FALSE(label.isDeleted());
    EXPECT_FALSE(label.getPosition());
    EXPECT_FALSE(label.getGraphicProps());
    expectText(label,
               R"({"_deleted":false,"_position":{"hasValue":false},"_graphicProps":{"hasValue":false}})");
}

TEST(GroupDataLabel, KeepsEveryMember)
{
    GroupDataLabel label;
    label.setDeleted(true);
    label.setPosition(static_cast<DataLabelPosition>(200));
    label.setGraphicProps(ChartGraphicProps());
    EXPECT_TRUE(label.isDeleted());
    EXPECT_EQ(static_cast<int>(*label.getPosition()), 200);
    EXPECT_TRUE(label.getGraphicProps());
    expectText(label, R"({"_deleted":true,"_position":{"hasValue":true,"value":200},"_graphicProps":)" +
                          makePresentJson(EmptyPaintJson) + "}");
    expectEachChangeMatters(
        label, [](GroupDataLabel& changed) { changed.setDeleted(false); },
        [](GroupDataLabel& changed) { changed.setPosition(boost::none); },
        [](GroupDataLabel& changed) { changed.setGraphicProps(makePaint()); });
}

} // namespace
} // namespace QN::DOM::GroupDataLabelTest
