#include "DOM/Tables/Properties/DOM_TableSettings.h"

#include <gtest/gtest.h>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::TableSettingsTest {
namespace {

using namespace QN::Test;

TEST(DOM_TableSettings, ShowZerosAndHaveSummariesBelowAndToTheRightByDefault)
{
    const TableSettings settings;
    EXPECT_TRUE(settings.getShowZeroValue());
    EXPECT_EQ(settings.getGroupingProps(), GroupingProps());
    expectText(settings,
               R"({"_showZeroValue":true,"_groupingProps":{"_isSummaryBelow":true,"_isSummaryRight":true}})");
}

TEST(DOM_TableSettings, WriteWhatWasSet)
{
    const auto settings = with<TableSettings>([](auto& changed) {
        changed.setShowZeroValue(false);
        changed.getGroupingProps().setSummaryRight(false);
    });
    expectText(
        settings,
        R"({"_showZeroValue":false,"_groupingProps":{"_isSummaryBelow":true,"_isSummaryRight":false}})");
    expectCopiesAndMoves(settings);
    EXPECT_EQ(with<TableSettings>([&](auto& changed) {
                  changed.setShowZeroValue(false);
                  changed.setGroupingProps(settings.getGroupingProps());
              }),
              settings);
}

TEST(DOM_TableSettings, OrderByTheirMembersInTurn)
{
    expectAscending(
        {with<TableSettings>([](auto& settings) { settings.setShowZeroValue(false); }),
         with<TableSettings>([](auto& settings) { settings.getGroupingProps().setSummaryBelow(false); }),
         TableSettings()});
}

} // namespace
} // namespace QN::DOM::TableSettingsTest
