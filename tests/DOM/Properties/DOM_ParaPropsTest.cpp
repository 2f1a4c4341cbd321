#include "DOM/Properties/DOM_ParaProps.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <utility>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/Tables/Properties/DOM_BordersProps.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::ParaPropsTest {

using namespace Test;

static_assert(std::is_same_v<std::underlying_type_t<Alignment>, unsigned char>);

namespace {

constexpr const char* DefaultJson =
    R"({"_beforeSpacing":{"hasValue":false},"_afterSpacing":{"hasValue":false},)"
    R"("_lineSpacing":{"hasValue":false},"_borders":{"ptr_wrapper":{"id":0}},)"
    R"("_alignment":{"hasValue":false},"_leftIndent":{"hasValue":false},)"
    R"("_rightIndent":{"hasValue":false},"_firstLineIndent":{"hasValue":false},)"
    R"("_ignoreInternalParagraphSpacing":{"value":-1},"_keepNext":{"value":-1},)"
    R"("_keepLines":{"value":-1},"_hasPageBreakBefore":{"value":-1},)"
    R"("_orphanLines":{"hasValue":false},"_widowLines":{"hasValue":false},)"
    R"("_tabStops":{"hasValue":false},"_outlineLevel":{"hasValue":false}})";

TabStopProps makeStop(TabStopLeader leader)
{
    return with<TabStopProps>([&](TabStopProps& stop) { stop.setLeader(leader); });
}

ParaProps withStops(TabStops stops)
{
    return with<ParaProps>([&](ParaProps& props) { props.setTabStops(std::move(stops)); });
}

const TabStopProps Dotted = makeStop(TabStopLeader::Dot);
const TabStopProps Heavy = makeStop(TabStopLeader::Heavy);

} // namespace

TEST(ParaPropsTest, EveryMemberIsAbsentByDefault)
{
    const ParaProps props;
    EXPECT_FALSE(props.getBeforeSpacing());
    EXPECT_FALSE(props.getAfterSpacing());
    EXPECT_FALSE(props.getLineSpacing());
    EXPECT_EQ(props.getBorders(), nullptr);
    EXPECT_FALSE(props.getAlignment());
    EXPECT_FALSE(props.getLeftIndent());
    EXPECT_FALSE(props.getRightIndent());
    EXPECT_FALSE(props.getFirstLineIndent());
    EXPECT_FALSE(props.ignoreInternalParagraphSpacing());
    EXPECT_FALSE(props.keepNext());
    EXPECT_FALSE(props.keepLines());
    EXPECT_FALSE(props.hasPageBreakBefore());
    EXPECT_FALSE(props.getOrphanLines());
    EXPECT_FALSE(props.getWidowLines());
    EXPECT_FALSE(props.getTabStops());
    EXPECT_FALSE(props.getOutlineLevel());
    EXPECT_EQ(props, ParaProps());
}

TEST(ParaPropsTest, ADefaultWritesEachKeyInOrder)
{
    EXPECT_EQ(toJson(ParaProps()), DefaultJson);
}

TEST(ParaPropsTest, ASetMemberIsReadBack)
{
    const ParaProps props = makeFullParaProps();
    EXPECT_SAME(props.getBeforeSpacing(), SpacingValue(6.0F));
    EXPECT_TRUE(props.getAfterSpacing()->isAuto());
    EXPECT_SAME(props.getLineSpacing(), LineSpacing(12.5F, LineSpacingRule::AtLeast));
    EXPECT_EQ(*props.getBorders(), *makeBorders(2.0F));
    EXPECT_SAME(props.getAlignment(), Alignment::Justify);
    EXPECT_SAME(props.getLeftIndent(), 36.0F);
    EXPECT_SAME(props.getRightIndent(), -18.0F);
    EXPECT_SAME(props.getFirstLineIndent(), 9.0F);
    EXPECT_EQ(props.ignoreInternalParagraphSpacing(), BoolOpt(true));
    EXPECT_EQ(props.keepNext(), BoolOpt(false));
    EXPECT_EQ(props.keepLines(), BoolOpt(true));
    EXPECT_EQ(props.hasPageBreakBefore(), BoolOpt(false));
    EXPECT_SAME(props.getOrphanLines(), static_cast<unsigned char>(2));
    EXPECT_SAME(props.getWidowLines(), static_cast<unsigned char>(255));
    EXPECT_EQ(props.getTabStops()->size(), 2U);
    EXPECT_SAME(props.getOutlineLevel(), 8UL);
}

TEST(ParaPropsTest, AMemberIsMadeAbsentAgain)
{
    ParaProps props = makeFullParaProps();
    props.setBeforeSpacing(boost::none);
    props.setAfterSpacing(boost::none);
    props.setLineSpacing(boost::none);
    props.setBorders(nullptr);
    props.setAlignment(boost::none);
    props.setLeftIndent(boost::none);
    props.setRightIndent(boost::none);
    props.setFirstLineIndent(boost::none);
    props.setIgnoreInternalParagraphSpacing(boost::none);
    props.setKeepNext(boost::none);
    props.setKeepLines(boost::none);
    props.setPageBreakBefore(boost::none);
    props.setOrphanLines(boost::none);
    props.setWidowLines(boost::none);
    props.setTabStops(boost::none);
    props.setOutlineLevel(boost::none);
    EXPECT_EQ(props, ParaProps());
}

TEST(ParaPropsTest, PersistsWithNothingAndWithEverythingSet)
{
    expectPersists(ParaProps());
    expectPersists(makeFullParaProps());
    expectPersists(
        with<ParaProps>([](ParaProps& props) { props.setAlignment(static_cast<Alignment>(255)); }));
    expectCopiesAndMoves(makeFullParaProps());
}

TEST(ParaPropsTest, TabStopsPersistAsKeysAndValuesInTheOrderOfTheirPositions)
{
    ParaProps props;
    props.getTabStops().emplace();
    (*props.getTabStops())[72.0F] = Heavy;
    (*props.getTabStops())[36.0F] = Dotted;
    const auto stop = [](int leader) {
        return R"({"_type":6,"_tabStopChar":{"hasValue":false},"_leader":)" + std::to_string(leader) +
               R"(,"_leaderChar":{"hasValue":false}})";
    };
    EXPECT_NE(toJson(props).find(R"("_tabStops":{"hasValue":true,"value":[{"key":36.0,"value":)" + stop(1) +
                                 R"(},{"key":72.0,"value":)" + stop(4) + "}]},"),
              std::string::npos);
}

TEST(ParaPropsTest, APresentAndEmptyTabMapDiffersFromAnAbsentOne)
{
    const ParaProps props = withStops({});
    EXPECT_NE(props, ParaProps());
    EXPECT_NE(toJson(props).find(R"("_tabStops":{"hasValue":true,"value":[]})"), std::string::npos);
    expectPersists(props);
}

TEST(ParaPropsTest, ALineCountBeyondAByteIsRefused)
{
    std::string json = DefaultJson;
    const std::string absent = R"("_orphanLines":{"hasValue":false})";
    json.replace(json.find(absent), absent.size(), R"("_orphanLines":{"hasValue":true,"value":256})");
    EXPECT_THROW(fromJson<ParaProps>(json), cereal::RapidJSONException);
}

TEST(ParaPropsTest, OrdersByMembersInKeyOrderWithTheAbsentFirst)
{
    expectAscending<ParaProps>({
        ParaProps(),
        with<ParaProps>([](ParaProps& p) { p.setOutlineLevel(0UL); }),
        withStops({}),
        withStops({{1.0F, Dotted}}),
        withStops({{1.0F, Heavy}}),
        withStops({{2.0F, Dotted}}),
        with<ParaProps>([](ParaProps& p) { p.setWidowLines(static_cast<unsigned char>(0)); }),
        with<ParaProps>([](ParaProps& p) { p.setOrphanLines(static_cast<unsigned char>(0)); }),
        with<ParaProps>([](ParaProps& p) { p.setPageBreakBefore(false); }),
        with<ParaProps>([](ParaProps& p) { p.setKeepLines(false); }),
        with<ParaProps>([](ParaProps& p) { p.setKeepNext(false); }),
        with<ParaProps>([](ParaProps& p) { p.setIgnoreInternalParagraphSpacing(false); }),
        with<ParaProps>([](ParaProps& p) { p.setFirstLineIndent(-9.0F); }),
        with<ParaProps>([](ParaProps& p) { p.setRightIndent(-9.0F); }),
        with<ParaProps>([](ParaProps& p) { p.setLeftIndent(-9.0F); }),
        with<ParaProps>([](ParaProps& p) { p.setAlignment(Alignment::Left); }),
        with<ParaProps>([](ParaProps& p) { p.setBorders(std::make_shared<BordersProps>()); }),
        with<ParaProps>([](ParaProps& p) { p.setLineSpacing(LineSpacing()); }),
        with<ParaProps>([](ParaProps& p) { p.setAfterSpacing(SpacingValue()); }),
        with<ParaProps>([](ParaProps& p) { p.setBeforeSpacing(SpacingValue::createAutoValue()); }),
        with<ParaProps>([](ParaProps& p) { p.setBeforeSpacing(SpacingValue(0.0F)); }),
    });
}

TEST(ParaPropsTest, OverrideMergesTabStopsByPosition)
{
    ParaProps target = withStops({{1.0F, Dotted}, {2.0F, Dotted}});
    override(target, withStops({{2.0F, Heavy}, {3.0F, Heavy}}));
    EXPECT_EQ(target, withStops({{1.0F, Dotted}, {2.0F, Heavy}, {3.0F, Heavy}}));

    override(target, ParaProps());
    EXPECT_EQ(target.getTabStops()->size(), 3U);

    ParaProps empty;
    override(empty, withStops({{1.0F, Dotted}}));
    EXPECT_EQ(empty, withStops({{1.0F, Dotted}}));
}

TEST(ParaPropsTest, OverrideWithNothingChangesNothing)
{
    ParaProps target = makeFullParaProps();
    override(target, ParaProps());
    EXPECT_EQ(target, makeFullParaProps());
    override(target, with<ParaProps>([](ParaProps& p) { p.setBeforeSpacing(SpacingValue(1.0F)); }));
    EXPECT_SAME(target.getBeforeSpacing(), SpacingValue(1.0F));
    EXPECT_TRUE(target.getAfterSpacing()->isAuto());
}

TEST(ParaPropsTest, ExcludeTakesTabStopsAwayOnlyAsAWhole)
{
    ParaProps target = withStops({{1.0F, Dotted}, {2.0F, Dotted}});
    exclude(target, withStops({{1.0F, Dotted}, {2.0F, Heavy}}));
    EXPECT_EQ(target, withStops({{1.0F, Dotted}, {2.0F, Dotted}}));
    exclude(target, withStops({{1.0F, Dotted}, {2.0F, Dotted}}));
    EXPECT_EQ(target, ParaProps());
}

TEST(ParaPropsTest, ExcludingASetFromItselfLeavesNothing)
{
    ParaProps target = makeFullParaProps();
    exclude(target, makeFullParaProps());
    EXPECT_EQ(target, ParaProps());
}

TEST(ParaPropsTest, IntersectKeepsTheTabStopsThatBothHave)
{
    ParaProps target = withStops({{1.0F, Dotted}, {2.0F, Dotted}, {3.0F, Dotted}});
    intersect(target, withStops({{1.0F, Dotted}, {2.0F, Heavy}, {4.0F, Dotted}}));
    EXPECT_EQ(target, withStops({{1.0F, Dotted}}));

    intersect(target, withStops({}));
    EXPECT_EQ(target, withStops({}));
    intersect(target, ParaProps());
    EXPECT_EQ(target, ParaProps());
    intersect(target, withStops({}));
    EXPECT_EQ(target, ParaProps());
}

TEST(ParaPropsTest, RebaseTreatsTabStopsAsOneOptionalOfAWholeMap)
{
    ParaProps target = withStops({{1.0F, Dotted}});
    rebaseProperty(target, withStops({{2.0F, Heavy}}), ParaProps(), withStops({}));
    EXPECT_SAME(target.getTabStops(), withStops({{2.0F, Heavy}}).getTabStops());

    rebaseProperty(target, withStops({{3.0F, Heavy}}), withStops({{9.0F, Heavy}}), ParaProps());
    EXPECT_SAME(target.getTabStops(), withStops({{2.0F, Heavy}}).getTabStops());
}

TEST(ParaPropsTest, RebaseHoldsAbsentAndZeroSpacingForAgreeingWhereATargetIsPresent)
{
    const auto before = [](SpacingValue value) {
        return with<ParaProps>([&](ParaProps& p) { p.setBeforeSpacing(value); });
    };
    ParaProps target = before(SpacingValue(5.0F));
    rebaseProperty(target, before(SpacingValue(7.0F)), ParaProps(), before(SpacingValue(0.0F)));
    EXPECT_SAME(target.getBeforeSpacing(), SpacingValue(7.0F));
    rebaseProperty(target, before(SpacingValue(8.0F)), ParaProps(), before(SpacingValue::createAutoValue()));
    EXPECT_SAME(target.getBeforeSpacing(), SpacingValue(7.0F));
}

TEST(ParaPropsTest, RebaseLeavesATargetWhoseReferencesAreBothNaN)
{
    const auto indent = [](float value) {
        return with<ParaProps>([&](ParaProps& p) { p.setLeftIndent(value); });
    };
    const float nan = std::numeric_limits<float>::quiet_NaN();
    ParaProps target = indent(5.0F);
    rebaseProperty(target, indent(7.0F), indent(nan), indent(nan));
    EXPECT_SAME(target.getLeftIndent(), 5.0F);
}

TEST(ParaPropsTest, RebaseLeavesEmptyBordersWhereNothingIsSaidOnAnySide)
{
    ParaProps target;
    rebaseProperty(target, ParaProps(), ParaProps(), ParaProps());
    ASSERT_NE(target.getBorders(), nullptr);
    EXPECT_EQ(*target.getBorders(), BordersProps());
}

TEST(ParaPropsTest, ASetIsCombinedWithItself)
{
    ParaProps props = makeFullParaProps();
    const ParaProps& itself = props;
    override(props, itself);
    EXPECT_EQ(props, makeFullParaProps());
    intersect(props, itself);
    EXPECT_EQ(props, makeFullParaProps());
    rebaseProperty(props, itself, itself, itself);
    EXPECT_EQ(props, makeFullParaProps());
    exclude(props, itself);
    EXPECT_EQ(props, ParaProps());
}

TEST(ParaPropsTest, LoadingReplacesWhatWasThere)
{
    ParaProps props = makeFullParaProps();
    loadJson(toJson(ParaProps()), props);
    EXPECT_EQ(props, ParaProps());
}

} // namespace QN::DOM::ParaPropsTest
