#include "DOM/Properties/DOM_RegularLineProps.h"

#include <gtest/gtest.h>

#include <limits>

#include "DOM/Properties/DOM_LineEndingProps.h"
#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "DOM/Properties/PaintSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::RegularLinePropsTest {

using namespace Test;

namespace {

constexpr float NaN = std::numeric_limits<float>::quiet_NaN();

std::shared_ptr<const LineEndingProps> makeEnding(float width,
                                                  boost::optional<EndingStyle> style = boost::none)
{
    LineEndingProps ending;
    ending.setWidth(width);
    ending.setEndingStyle(style);
    return std::make_shared<const LineEndingProps>(ending);
}

template <class Change>
RegularLineProps makeLine(Change change)
{
    RegularLineProps line;
    change(line);
    return line;
}

RegularLineProps makeFullLine()
{
    return makeLine([](RegularLineProps& line) {
        line.setWidth(MediumLineWidth);
        line.setDashStyle(DashStyle::Dash);
        line.setHeadLineEnding(makeEnding(1.0F, EndingStyle::Arrow));
        line.setTailLineEnding(makeEnding(2.0F));
        line.setColor(makeSlotColor(ThemeColorId::Accent1));
    });
}

} // namespace

TEST(RegularLinePropsTest, HoldsNothingByDefault)
{
    const RegularLineProps line;
    EXPECT_FALSE(line.getWidth()) << "which is not a hairline";
    EXPECT_FALSE(line.getDashStyle());
    EXPECT_FALSE(line.getHeadLineEnding());
    EXPECT_FALSE(line.getTailLineEnding());
    EXPECT_FALSE(line.getColor()) << "which is not black";
    EXPECT_NE(line, makeLine([](RegularLineProps& other) { other.setColor(Color()); }));
    EXPECT_NE(line, makeLine([](RegularLineProps& other) { other.setWidth(0.0F); }));
}

TEST(RegularLinePropsTest, PersistsItsMembersInOrder)
{
    const RegularLineProps line = makeLine([](RegularLineProps& changed) {
        changed.setWidth(2.5F);
        changed.setDashStyle(DashStyle::Solid);
        changed.setHeadLineEnding(makeEnding(1.0F, EndingStyle::Arrow));
        changed.setColor(makeSlotColor(ThemeColorId::Dark1));
    });
    EXPECT_EQ(
        toJson(line),
        R"({"value0":{},"_width":{"hasValue":true,"value":2.5},"_dashStyle":{"hasValue":true,"value":1},)"
        R"("_head":{"ptr_wrapper":{"id":2147483649,"data":{"_width":{"hasValue":true,"value":1.0},)"
        R"("_endingStyle":{"hasValue":true,"value":5}}}},"_tail":{"ptr_wrapper":{"id":0}},)"
        R"("_color":{"hasValue":true,"value":{"_value":{"which":1,"data":4},"_transforms":[]}}})");
    expectPersists(line);
    expectPersists(makeFullLine());
    expectPersists(RegularLineProps());
}

TEST(RegularLinePropsTest, OneEndingAtBothEndsStaysOneObject)
{
    const RegularLineProps line = makeLine([](RegularLineProps& changed) {
        changed.setHeadLineEnding(makeEnding(1.0F));
        changed.setTailLineEnding(changed.getHeadLineEnding());
    });
    const auto loaded = fromJson<RegularLineProps>(toJson(line));
    EXPECT_EQ(loaded, line);
    EXPECT_EQ(loaded.getHeadLineEnding(), loaded.getTailLineEnding());
}

TEST(RegularLinePropsTest, NoLineAndASolidLineAreTheFirstDashStyles)
{
    static_assert(sizeof(DashStyle) == 1);
    EXPECT_EQ(static_cast<int>(DashStyle::None), 0);
    EXPECT_EQ(static_cast<int>(DashStyle::Solid), 1);
    expectRoundTrip(makeLine([](RegularLineProps& line) { line.setDashStyle(static_cast<DashStyle>(255)); }));
}

TEST(RegularLinePropsTest, SettersSetAndClear)
{
    RegularLineProps line = makeFullLine();
    EXPECT_EQ(*line.getWidth(), MediumLineWidth);
    EXPECT_EQ(*line.getDashStyle(), DashStyle::Dash);
    EXPECT_EQ(*line.getHeadLineEnding(), *makeEnding(1.0F, EndingStyle::Arrow));
    EXPECT_EQ(*line.getTailLineEnding(), *makeEnding(2.0F));
    EXPECT_EQ(*line.getColor(), makeSlotColor(ThemeColorId::Accent1));
    line.setWidth(boost::none);
    line.setDashStyle(boost::none);
    line.setHeadLineEnding(nullptr);
    line.setTailLineEnding(nullptr);
    line.setColor(boost::none);
    EXPECT_EQ(line, RegularLineProps());
}

TEST(RegularLinePropsTest, EndingsCompareByTheirContent)
{
    const auto makeHeaded = [](float width) {
        return makeLine([&](RegularLineProps& line) { line.setHeadLineEnding(makeEnding(width)); });
    };
    EXPECT_EQ(makeHeaded(1.0F), makeHeaded(1.0F));
    EXPECT_NE(makeHeaded(1.0F), makeHeaded(2.0F));
    EXPECT_NE(makeHeaded(1.0F), RegularLineProps());
}

TEST(RegularLinePropsTest, OrdersByItsMembersInTheOrderOfTheKeys)
{
    expectAscending<RegularLineProps>({
        RegularLineProps(),
        makeLine([](RegularLineProps& line) { line.setColor(Color()); }),
        makeLine([](RegularLineProps& line) { line.setColor(makePlaceholder()); }),
        makeLine([](RegularLineProps& line) { line.setTailLineEnding(makeEnding(1.0F)); }),
        makeLine([](RegularLineProps& line) { line.setTailLineEnding(makeEnding(2.0F)); }),
        makeLine([](RegularLineProps& line) { line.setHeadLineEnding(makeEnding(-1.0F)); }),
        makeLine([](RegularLineProps& line) { line.setDashStyle(DashStyle::None); }),
        makeLine([](RegularLineProps& line) { line.setDashStyle(DashStyle::Solid); }),
        makeLine([](RegularLineProps& line) { line.setWidth(-1.0F); }),
        makeLine([](RegularLineProps& line) { line.setWidth(0.0F); }),
        makeFullLine(),
    });
}

TEST(RegularLinePropsTest, ANanWidthIsNotLessAndLastInPools)
{
    const auto makeWide = [](float width) {
        return makeLine([&](RegularLineProps& line) { line.setWidth(width); });
    };
    EXPECT_FALSE(makeWide(NaN) < makeWide(1.0F));
    EXPECT_FALSE(makeWide(1.0F) < makeWide(NaN));
    EXPECT_NE(makeWide(NaN), makeWide(NaN));
    EXPECT_TRUE(makeWide(1.0F).compare(makeWide(NaN), NanOrder::Last) < 0);
    EXPECT_TRUE(makeWide(NaN).compare(makeWide(NaN), NanOrder::Last) == 0);
}

TEST(RegularLinePropsTest, IntersectKeepsAnEqualWidthAndRemovesADifferentColor)
{
    RegularLineProps target = makeLine([](RegularLineProps& line) {
        line.setWidth(1.0F);
        line.setColor(makeSlotColor(ThemeColorId::Dark1));
    });
    intersect(target, makeLine([](RegularLineProps& line) {
                  line.setWidth(1.0F);
                  line.setColor(makeSlotColor(ThemeColorId::Light1));
              }));
    EXPECT_EQ(target, makeLine([](RegularLineProps& line) { line.setWidth(1.0F); }));
}

TEST(RegularLinePropsTest, IntersectRemovesWhatTheOtherSideLacks)
{
    RegularLineProps target = makeFullLine();
    intersect(target, RegularLineProps());
    EXPECT_EQ(target, RegularLineProps());
    intersect(target, makeFullLine());
    EXPECT_EQ(target, RegularLineProps()) << "and adds nothing";
}

TEST(RegularLinePropsTest, IntersectKeepsThePartOfAnEndingThatAgrees)
{
    RegularLineProps target = makeFullLine();
    const auto sharedHead = target.getHeadLineEnding();
    intersect(target, makeLine([](RegularLineProps& line) {
                  line.setHeadLineEnding(makeEnding(1.0F, EndingStyle::Oval));
              }));
    EXPECT_EQ(target, makeLine([](RegularLineProps& line) { line.setHeadLineEnding(makeEnding(1.0F)); }));
    EXPECT_EQ(*sharedHead, *makeEnding(1.0F, EndingStyle::Arrow)) << "another holder sees no change";
}

TEST(RegularLinePropsTest, IntersectWithItselfChangesNothing)
{
    RegularLineProps target = makeFullLine();
    intersect(target, makeFullLine());
    EXPECT_EQ(target, makeFullLine());
}

TEST(RegularLinePropsTest, IsReplacedWholeByARebase)
{
    RegularLineProps target = makeFullLine();
    const RegularLineProps replacement = makeLine([](RegularLineProps& line) { line.setWidth(9.0F); });
    rebaseAtomicProperty(target, replacement, RegularLineProps(), makeFullLine());
    EXPECT_EQ(target, makeFullLine());
    rebaseAtomicProperty(target, replacement, makeFullLine(), makeFullLine());
    EXPECT_EQ(target, replacement);
}

TEST(RegularLinePropsTest, HasNoOtherOperationsOfItsOwn)
{
    static_assert(HasIntersect<RegularLineProps>);
    static_assert(!HasOverride<RegularLineProps>);
    static_assert(!HasExclude<RegularLineProps>);
    static_assert(!HasRebase<RegularLineProps>);
}

TEST(RegularLinePropsTest, ACopySharesTheImmutableEndings)
{
    expectCopiesAndMoves(makeFullLine());
    const RegularLineProps source = makeFullLine();
    const RegularLineProps copy = makeCopy(source);
    EXPECT_EQ(copy.getHeadLineEnding(), source.getHeadLineEnding());
    RegularLineProps changed(source);
    changed.setWidth(boost::none);
    EXPECT_EQ(source, makeFullLine());
}

} // namespace QN::DOM::RegularLinePropsTest
