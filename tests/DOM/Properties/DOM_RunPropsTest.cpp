#include "DOM/Properties/DOM_RunProps.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "DOM/Properties/DOM_FontProps.h"
#include "DOM/Properties/DOM_RegularLineProps.h"
#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::RunPropsTest {

using namespace Test;

TEST(RunPropsTest, EveryMemberIsAbsentByDefault)
{
    const RunProps props;
    EXPECT_FALSE(props.getBackgroundColor());
    EXPECT_FALSE(props.getCaps());
    EXPECT_FALSE(props.getColor());
    EXPECT_EQ(props.getFontProps(), nullptr);
    EXPECT_FALSE(props.getSmallCaps());
    EXPECT_FALSE(props.getSpacing());
    EXPECT_FALSE(props.getStrikeThrough());
    EXPECT_FALSE(props.getEmbossed());
    EXPECT_FALSE(props.getEngraved());
    EXPECT_EQ(props.getUnderline(), nullptr);
    EXPECT_FALSE(props.getShadow());
    EXPECT_EQ(props, RunProps());
}

TEST(RunPropsTest, ADefaultWritesEachKeyInOrder)
{
    EXPECT_EQ(toJson(RunProps()),
              R"({"_backgroundColor":{"hasValue":false},"_caps":{"value":-1},"_color":{"hasValue":false},)"
              R"("_fontProps":{"ptr_wrapper":{"id":0}},"_smallCaps":{"value":-1},)"
              R"("_spacing":{"hasValue":false},"_strikeThrough":{"value":-1},"_embossed":{"value":-1},)"
              R"("_engraved":{"value":-1},"_underline":{"polymorphic_id":0},"_shadow":{"value":-1}})");
}

TEST(RunPropsTest, ASetMemberIsReadBack)
{
    const RunProps props = makeFullRunProps();
    EXPECT_SAME(props.getBackgroundColor(), makeColor(1, 2, 3, 4));
    EXPECT_EQ(props.getCaps(), BoolOpt(true));
    EXPECT_SAME(props.getColor(), makeSlotColor(ThemeColorId::Accent1));
    EXPECT_EQ(*props.getFontProps(), *makeFont("Quillon Serif", 11.5F));
    EXPECT_EQ(props.getSmallCaps(), BoolOpt(false));
    EXPECT_SAME(props.getSpacing(), -0.5F);
    EXPECT_EQ(props.getStrikeThrough(), BoolOpt(true));
    EXPECT_EQ(props.getEmbossed(), BoolOpt(false));
    EXPECT_EQ(props.getEngraved(), BoolOpt(true));
    EXPECT_EQ(*props.getUnderline(), *makeLine(1.5F));
    EXPECT_EQ(props.getShadow(), BoolOpt(false));
}

TEST(RunPropsTest, AMemberIsMadeAbsentAgain)
{
    RunProps props = makeFullRunProps();
    props.setBackgroundColor(boost::none);
    props.setCaps(boost::none);
    props.setColor(boost::none);
    props.setFontProps(nullptr);
    props.setSmallCaps(boost::none);
    props.setSpacing(boost::none);
    props.setStrikeThrough(boost::none);
    props.setEmbossed(boost::none);
    props.setEngraved(boost::none);
    props.setUnderline(nullptr);
    props.setShadow(boost::none);
    EXPECT_EQ(props, RunProps());
}

TEST(RunPropsTest, PersistsWithNothingAndWithEverythingSet)
{
    expectPersists(RunProps());
    expectPersists(makeFullRunProps());
    expectCopiesAndMoves(makeFullRunProps());
}

TEST(RunPropsTest, TheUnderlineIsWrittenAsAPolymorphicPointerAndTheFontAsASharedOne)
{
    const auto props = with<RunProps>([](RunProps& p) {
        p.setFontProps(std::make_shared<FontProps>());
        p.setUnderline(makeLine(2.0F));
    });
    const std::string json = toJson(props);
    EXPECT_NE(json.find(R"("_fontProps":{"ptr_wrapper":{"id":2147483649,"data":{"_font":)"),
              std::string::npos);
    EXPECT_NE(json.find(R"("_underline":{"polymorphic_id":2147483649,)"
                        R"("polymorphic_name":"QN::DOM::RegularLineProps",)"
                        R"("ptr_wrapper":{"id":2147483650,"data":{"value0":{},"_width":)"),
              std::string::npos);
}

TEST(RunPropsTest, ALineOfTheThemeIsNoUnderline)
{
    std::string json = toJson(with<RunProps>([](RunProps& p) { p.setUnderline(makeLine(2.0F)); }));
    const std::string name = "QN::DOM::RegularLineProps";
    json.replace(json.find(name), name.size(), "QN::DOM::ThemeLineProps");
    EXPECT_EQ(loadError<RunProps>(json).substr(0, 78),
              "Trying to load a registered polymorphic type with an unregistered polymorphic ");
}

TEST(RunPropsTest, EqualityLooksThroughPointers)
{
    RunProps left = makeFullRunProps();
    RunProps right = makeFullRunProps();
    ASSERT_NE(left.getFontProps(), right.getFontProps());
    EXPECT_EQ(left, right);
    right.setFontProps(makeFont("Quillon Serif", 12.0F));
    EXPECT_NE(left, right);
    right.setFontProps(nullptr);
    EXPECT_NE(left, right);
}

TEST(RunPropsTest, PresentAndEmptyFontPropertiesDifferFromAbsentOnes)
{
    EXPECT_NE(RunProps(), with<RunProps>([](RunProps& p) { p.setFontProps(std::make_shared<FontProps>()); }));
}

TEST(RunPropsTest, OrdersByMembersInKeyOrderWithTheAbsentFirst)
{
    expectAscending<RunProps>({
        RunProps(),
        with<RunProps>([](RunProps& p) { p.setShadow(false); }),
        with<RunProps>([](RunProps& p) { p.setUnderline(std::make_shared<RegularLineProps>()); }),
        with<RunProps>([](RunProps& p) { p.setUnderline(makeLine(1.0F)); }),
        with<RunProps>([](RunProps& p) { p.setEngraved(false); }),
        with<RunProps>([](RunProps& p) { p.setEmbossed(false); }),
        with<RunProps>([](RunProps& p) { p.setStrikeThrough(false); }),
        with<RunProps>([](RunProps& p) { p.setSpacing(-3.0F); }),
        with<RunProps>([](RunProps& p) { p.setSmallCaps(false); }),
        with<RunProps>([](RunProps& p) { p.setFontProps(std::make_shared<FontProps>()); }),
        with<RunProps>([](RunProps& p) { p.setColor(makeColor(0, 0, 0, 0)); }),
        with<RunProps>([](RunProps& p) { p.setCaps(false); }),
        with<RunProps>([](RunProps& p) { p.setCaps(true); }),
        with<RunProps>([](RunProps& p) { p.setBackgroundColor(makeColor(0, 0, 0, 0)); }),
    });
}

TEST(RunPropsTest, OverrideSharesAPointerWhereTheTargetHasNone)
{
    const auto font = makeFont("A", 1.0F);
    RunProps target;
    override(target, with<RunProps>([&](RunProps& p) { p.setFontProps(font); }));
    EXPECT_EQ(target.getFontProps(), font);
}

TEST(RunPropsTest, OverrideCopiesAPointeeThatOthersHold)
{
    const auto shared = makeFont("A", 1.0F);
    RunProps target = with<RunProps>([&](RunProps& p) { p.setFontProps(shared); });
    override(target, with<RunProps>([](RunProps& p) {
                 p.setFontProps(sharedWith<FontProps>([](FontProps& f) { f.setSize(2.0F); }));
             }));
    EXPECT_EQ(*target.getFontProps(), *makeFont("A", 2.0F));
    EXPECT_EQ(*shared, *makeFont("A", 1.0F));
}

TEST(RunPropsTest, OverrideReplacesTheUnderlineWhole)
{
    RunProps target = with<RunProps>([](RunProps& p) { p.setUnderline(makeLine(1.0F)); });
    const auto dashed =
        sharedWith<RegularLineProps>([](RegularLineProps& line) { line.setDashStyle(DashStyle::Dash); });
    override(target, with<RunProps>([&](RunProps& p) { p.setUnderline(dashed); }));
    EXPECT_EQ(*target.getUnderline(), *dashed);
}

TEST(RunPropsTest, OverrideWithNothingChangesNothing)
{
    RunProps target = makeFullRunProps();
    override(target, RunProps());
    EXPECT_EQ(target, makeFullRunProps());
}

TEST(RunPropsTest, ExcludeTakesAwayWhatTheOtherSaysButLeavesAnEmptiedFont)
{
    RunProps target = with<RunProps>(
        [](RunProps& p) { p.setFontProps(sharedWith<FontProps>([](FontProps& f) { f.setBold(true); })); });
    exclude(target, with<RunProps>([](RunProps& p) {
                p.setFontProps(sharedWith<FontProps>([](FontProps& f) {
                    f.setBold(true);
                    f.setItalic(true);
                }));
            }));
    ASSERT_NE(target.getFontProps(), nullptr);
    EXPECT_EQ(*target.getFontProps(), FontProps());

    target = makeFullRunProps();
    exclude(target, makeFullRunProps());
    EXPECT_EQ(target, RunProps());
}

TEST(RunPropsTest, ExcludeKeepsAnUnderlineThatDiffersInAnyMember)
{
    RunProps target = with<RunProps>([](RunProps& p) { p.setUnderline(makeLine(1.0F)); });
    exclude(target, with<RunProps>([](RunProps& p) {
                p.setUnderline(sharedWith<RegularLineProps>([](RegularLineProps& line) {
                    line.setWidth(1.0F);
                    line.setDashStyle(DashStyle::Dot);
                }));
            }));
    EXPECT_EQ(*target.getUnderline(), *makeLine(1.0F));
}

TEST(RunPropsTest, IntersectGoesThroughTheUnderlineByMember)
{
    const auto makeUnderlined = [](DashStyle style) {
        return with<RunProps>([&](RunProps& p) {
            p.setUnderline(sharedWith<RegularLineProps>([&](RegularLineProps& line) {
                line.setWidth(1.0F);
                line.setDashStyle(style);
            }));
        });
    };
    RunProps target = makeUnderlined(DashStyle::Dot);
    intersect(target, makeUnderlined(DashStyle::Dash));
    EXPECT_EQ(*target.getUnderline(), *makeLine(1.0F));

    intersect(target, RunProps());
    EXPECT_EQ(target, RunProps());
}

TEST(RunPropsTest, RebaseLeavesEmptyObjectsWhereNothingIsSaidOnAnySide)
{
    RunProps target;
    rebaseProperty(target, RunProps(), RunProps(), RunProps());
    ASSERT_NE(target.getFontProps(), nullptr);
    EXPECT_EQ(*target.getFontProps(), FontProps());
    ASSERT_NE(target.getUnderline(), nullptr);
    EXPECT_EQ(*target.getUnderline(), RegularLineProps());
}

TEST(RunPropsTest, RebaseTakesTheReplacementWhereTheReferencesAgree)
{
    RunProps target = makeFullRunProps();
    const auto replacement = with<RunProps>([](RunProps& p) {
        p.setSpacing(3.0F);
        p.setCaps(false);
        p.setUnderline(makeLine(9.0F));
    });
    const auto left = with<RunProps>([](RunProps& p) { p.setCaps(true); });
    rebaseProperty(target, replacement, left, RunProps());
    EXPECT_SAME(target.getSpacing(), 3.0F);
    EXPECT_EQ(target.getCaps(), BoolOpt(true)); // the references differ
    EXPECT_EQ(*target.getUnderline(), *makeLine(9.0F));
    EXPECT_EQ(*target.getFontProps(), FontProps());
}

TEST(RunPropsTest, RebaseKeepsAnUnderlineWhoseReferencesDiffer)
{
    RunProps target = with<RunProps>([](RunProps& p) { p.setUnderline(makeLine(1.0F)); });
    const auto withLine = [](float width) {
        return with<RunProps>([&](RunProps& p) { p.setUnderline(makeLine(width)); });
    };
    rebaseProperty(target, withLine(9.0F), withLine(3.0F), withLine(4.0F));
    EXPECT_EQ(*target.getUnderline(), *makeLine(1.0F));
}

TEST(RunPropsTest, ASetIsCombinedWithItself)
{
    RunProps props = makeFullRunProps();
    const RunProps& itself = props;
    override(props, itself);
    EXPECT_EQ(props, makeFullRunProps());
    intersect(props, itself);
    EXPECT_EQ(props, makeFullRunProps());
    rebaseProperty(props, itself, itself, itself);
    EXPECT_EQ(props, makeFullRunProps());
    exclude(props, itself);
    EXPECT_EQ(props, RunProps());
}

TEST(RunPropsTest, LoadingReplacesWhatWasThere)
{
    RunProps props = makeFullRunProps();
    loadJson(toJson(RunProps()), props);
    EXPECT_EQ(props, RunProps());
}

} // namespace QN::DOM::RunPropsTest
