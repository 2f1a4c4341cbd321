#include "DOM/Properties/DOM_LineEndingProps.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::LineEndingPropsTest {

using namespace Test;

namespace {

LineEndingProps makeEnding(boost::optional<float> width, boost::optional<EndingStyle> style = boost::none)
{
    LineEndingProps ending;
    ending.setWidth(width);
    ending.setEndingStyle(style);
    return ending;
}

} // namespace

TEST(LineEndingPropsTest, SaysNothingByDefault)
{
    EXPECT_FALSE(LineEndingProps().getWidth());
    EXPECT_FALSE(LineEndingProps().getEndingStyle());
    EXPECT_EQ(toJson(LineEndingProps()),
              R"({"_width":{"hasValue":false},"_endingStyle":{"hasValue":false}})");
}

TEST(LineEndingPropsTest, PersistsItsMembersInOrder)
{
    static_assert(sizeof(EndingStyle) == 1);
    const LineEndingProps ending = makeEnding(-2.5F, EndingStyle::Oval);
    EXPECT_EQ(toJson(ending),
              R"({"_width":{"hasValue":true,"value":-2.5},"_endingStyle":{"hasValue":true,"value":4}})");
    expectPersists(ending);
    expectPersists(LineEndingProps());
    expectRoundTrip(makeEnding(1.0F, static_cast<EndingStyle>(77)));
}

TEST(LineEndingPropsTest, SettersSetAndClear)
{
    LineEndingProps ending = makeEnding(1.0F, EndingStyle::Arrow);
    EXPECT_EQ(*ending.getWidth(), 1.0F);
    EXPECT_EQ(*ending.getEndingStyle(), EndingStyle::Arrow);
    ending.setWidth(boost::none);
    ending.setEndingStyle(boost::none);
    EXPECT_EQ(ending, LineEndingProps());
}

TEST(LineEndingPropsTest, OrdersByWidthThenByStyle)
{
    expectAscending<LineEndingProps>({
        LineEndingProps(),
        makeEnding(boost::none, EndingStyle::None),
        makeEnding(-1.0F, EndingStyle::Arrow),
        makeEnding(0.0F),
        makeEnding(0.0F, EndingStyle::None),
        makeEnding(0.0F, EndingStyle::Triangle),
        makeEnding(1.0F),
    });
}

TEST(LineEndingPropsTest, OverrideTakesWhatTheOtherSays)
{
    LineEndingProps target = makeEnding(1.0F, EndingStyle::Oval);
    override(target, makeEnding(boost::none, EndingStyle::Arrow));
    EXPECT_EQ(target, makeEnding(1.0F, EndingStyle::Arrow));
    override(target, LineEndingProps());
    EXPECT_EQ(target, makeEnding(1.0F, EndingStyle::Arrow));
}

TEST(LineEndingPropsTest, ExcludeRemovesWhatTheOtherSaysAlike)
{
    LineEndingProps target = makeEnding(1.0F, EndingStyle::Oval);
    exclude(target, makeEnding(1.0F, EndingStyle::Arrow));
    EXPECT_EQ(target, makeEnding(boost::none, EndingStyle::Oval));
    exclude(target, LineEndingProps(target));
    EXPECT_EQ(target, LineEndingProps());
}

TEST(LineEndingPropsTest, IntersectKeepsWhatBothSayAlike)
{
    LineEndingProps target = makeEnding(1.0F, EndingStyle::Oval);
    intersect(target, makeEnding(2.0F, EndingStyle::Oval));
    EXPECT_EQ(target, makeEnding(boost::none, EndingStyle::Oval));
    intersect(target, makeEnding(2.0F));
    EXPECT_EQ(target, LineEndingProps());
}

TEST(LineEndingPropsTest, RebaseTakesTheReplacementWhereTheReferencesAgree)
{
    LineEndingProps target = makeEnding(1.0F, EndingStyle::Oval);
    rebaseProperty(target, makeEnding(9.0F, EndingStyle::Arrow), makeEnding(3.0F, EndingStyle::None),
                   makeEnding(3.0F, EndingStyle::Diamond));
    EXPECT_EQ(target, makeEnding(9.0F, EndingStyle::Oval));
    rebaseProperty(target, LineEndingProps(), LineEndingProps(), makeEnding(3.0F));
    EXPECT_EQ(target, makeEnding(9.0F)) << "both references lack the style, so that the absent one is taken";
}

TEST(LineEndingPropsTest, RebaseHoldsAnAbsentReferenceEqualToADefaultOneForAPresentTarget)
{
    LineEndingProps target = makeEnding(5.0F);
    rebaseProperty(target, makeEnding(7.0F), makeEnding(boost::none), makeEnding(0.0F));
    EXPECT_EQ(target, makeEnding(7.0F));
    LineEndingProps absent;
    rebaseProperty(absent, makeEnding(7.0F), makeEnding(boost::none), makeEnding(0.0F));
    EXPECT_EQ(absent, LineEndingProps());
}

TEST(LineEndingPropsTest, IsAValueWithoutVirtualFunctions)
{
    static_assert(!std::is_polymorphic_v<LineEndingProps>);
    expectCopiesAndMoves(makeEnding(1.0F, EndingStyle::Stealth));
}

} // namespace QN::DOM::LineEndingPropsTest
