#include "DOM/Properties/DOM_ViewModeProps.h"

#include <gtest/gtest.h>

#include <memory>

#include "DOM/Properties/StyleSamples.h"

namespace QN::DOM::ViewModePropsTest {

using namespace Test;

namespace {

constexpr auto Tracked = TrackChangesViewMode::TrackedProps;
constexpr auto AllOthers = static_cast<TrackChangesViewMode>(~4U);

RunStyle makeRunStyle(std::shared_ptr<const RunProps> own, std::shared_ptr<const RunProps> tracked)
{
    return with<RunStyle>([&](RunStyle& style) {
        style.setRunProps(own);
        style.setTrackedRunProps(makeTracked(tracked));
    });
}

ParagraphStyle makeParagraphStyle(std::shared_ptr<const ParaProps> own,
                                  std::shared_ptr<const ParaProps> tracked)
{
    return with<ParagraphStyle>([&](ParagraphStyle& style) {
        style.setParaProps(own);
        style.setTrackedParaProps(makeTracked(tracked));
    });
}

} // namespace

TEST(ViewModePropsTest, WithTheFlagTheTrackedPropertiesAreSeen)
{
    const auto ownRun = makeRunProps(1.0F);
    const auto trackedRun = makeRunProps(2.0F);
    const RunStyle runStyle = makeRunStyle(ownRun, trackedRun);
    EXPECT_EQ(getRunPropsForViewMode(runStyle, Tracked), trackedRun);
    EXPECT_EQ(getRunPropsForViewMode(runStyle, Tracked | AllOthers), trackedRun);

    const auto ownPara = makeParaProps(1.0F);
    const auto trackedPara = makeParaProps(2.0F);
    const ParagraphStyle paragraphStyle = makeParagraphStyle(ownPara, trackedPara);
    EXPECT_EQ(getParaPropsForViewMode(paragraphStyle, Tracked), trackedPara);
    EXPECT_EQ(getParaPropsForViewMode(paragraphStyle, Tracked | AllOthers), trackedPara);
}

TEST(ViewModePropsTest, WithoutTheFlagTheTrackedPropertiesAreIgnored)
{
    const auto ownRun = makeRunProps(1.0F);
    const RunStyle runStyle = makeRunStyle(ownRun, makeRunProps(2.0F));
    EXPECT_EQ(getRunPropsForViewMode(runStyle, TrackChangesViewMode::None), ownRun);
    EXPECT_EQ(getRunPropsForViewMode(runStyle, AllOthers), ownRun);

    const auto ownPara = makeParaProps(1.0F);
    const ParagraphStyle paragraphStyle = makeParagraphStyle(ownPara, makeParaProps(2.0F));
    EXPECT_EQ(getParaPropsForViewMode(paragraphStyle, TrackChangesViewMode::None), ownPara);
    EXPECT_EQ(getParaPropsForViewMode(paragraphStyle, AllOthers), ownPara);
}

TEST(ViewModePropsTest, ANullInTheTrackedObjectIsSeenAsNull)
{
    EXPECT_EQ(getRunPropsForViewMode(makeRunStyle(makeRunProps(1.0F), nullptr), Tracked), nullptr);
    EXPECT_EQ(getParaPropsForViewMode(makeParagraphStyle(makeParaProps(1.0F), nullptr), Tracked), nullptr);
}

TEST(ViewModePropsTest, AStyleWithoutTrackedPropertiesShowsItsOwnInAnyMode)
{
    const auto runProps = makeRunProps(1.0F);
    const auto runStyle = with<RunStyle>([&](RunStyle& s) { s.setRunProps(runProps); });
    EXPECT_EQ(getRunPropsForViewMode(runStyle, Tracked), runProps);
    const auto paraProps = makeParaProps(1.0F);
    const auto paragraphStyle = with<ParagraphStyle>([&](ParagraphStyle& s) { s.setParaProps(paraProps); });
    EXPECT_EQ(getParaPropsForViewMode(paragraphStyle, Tracked), paraProps);
    EXPECT_EQ(getRunPropsForViewMode(RunStyle(), Tracked), nullptr);
    EXPECT_EQ(getParaPropsForViewMode(ParagraphStyle(), Tracked), nullptr);
}

} // namespace QN::DOM::ViewModePropsTest
