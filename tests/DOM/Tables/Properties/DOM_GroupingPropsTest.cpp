#include "DOM/Tables/Properties/DOM_GroupingProps.h"

#include <gtest/gtest.h>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::GroupingPropsTest {
namespace {

using namespace QN::Test;

TEST(DOM_GroupingProps, HaveTheirSummariesBelowAndToTheRightByDefault)
{
    EXPECT_TRUE(GroupingProps().isSummaryBelow());
    EXPECT_TRUE(GroupingProps().isSummaryRight());
    expectText(GroupingProps(), R"({"_isSummaryBelow":true,"_isSummaryRight":true})");
}

TEST(DOM_GroupingProps, WriteWhatWasSet)
{
    const auto props = with<GroupingProps>([](auto& changed) {
        changed.setSummaryBelow(false);
        changed.setSummaryRight(false);
    });
    expectText(props, R"({"_isSummaryBelow":false,"_isSummaryRight":false})");
    expectCopiesAndMoves(props);
}

TEST(DOM_GroupingProps, OrderByTheRowsAndThenByTheColumns)
{
    expectAscending({with<GroupingProps>([](auto& props) {
                         props.setSummaryBelow(false);
                         props.setSummaryRight(false);
                     }),
                     with<GroupingProps>([](auto& props) { props.setSummaryBelow(false); }),
                     with<GroupingProps>([](auto& props) { props.setSummaryRight(false); }),
                     GroupingProps()});
}

} // namespace
} // namespace QN::DOM::GroupingPropsTest
