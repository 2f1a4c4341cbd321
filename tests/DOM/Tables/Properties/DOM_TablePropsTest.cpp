#include "DOM/Tables/Properties/DOM_TableProps.h"

#include <gtest/gtest.h>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::TablePropsTest {
namespace {

using namespace QN::Test;

TableProps makeProps(bool isVisible, boost::optional<float> indent)
{
    TableProps props;
    props.setVisible(isVisible);
    props.setLeadingIndent(indent);
    return props;
}

TEST(DOM_TableProps, AreVisibleAndSayNothingOfAnIndentByDefault)
{
    EXPECT_TRUE(TableProps().isVisible());
    expectText(TableProps(), R"({"_isVisible":true,"_leadingIndent":{"hasValue":false}})");
}

TEST(DOM_TableProps, WriteAllThatTheySay)
{
    expectText(makeProps(false, 36.0F),
               R"({"_isVisible":false,"_leadingIndent":{"hasValue":true,"value":36.0}})");
    expectCopiesAndMoves(makeProps(false, 36.0F));
    EXPECT_EQ(makeProps(false, 36.0F).getLeadingIndent(), 36.0F);
}

TEST(DOM_TableProps, OrderByVisibilityAndThenByIndent)
{
    expectAscending({makeProps(false, boost::none), makeProps(false, 1.0F), makeProps(true, boost::none),
                     makeProps(true, -1.0F)});
}

TEST(DOM_TableProps, TakeTheVisibilityOfTheOtherInAnyCaseWhenTheyAreOverridden)
{
    TableProps target = makeProps(false, 1.0F);
    override(target, TableProps());
    EXPECT_EQ(target, makeProps(true, 1.0F));
}

TEST(DOM_TableProps, KeepTheirVisibilityWhenTheOtherIsExcluded)
{
    TableProps target = makeProps(false, 1.0F);
    exclude(target, makeProps(false, 1.0F));
    EXPECT_EQ(target, makeProps(false, boost::none));
}

TEST(DOM_TableProps, IntersectByTheirIndent)
{
    TableProps target = makeProps(false, 1.0F);
    intersect(target, makeProps(false, 2.0F));
    EXPECT_EQ(target, makeProps(false, boost::none));
}

TEST(DOM_TablePropsDeathTest, StopTheProcessWhenTwoOfDifferentVisibilityIntersect)
{
    TableProps target = makeProps(false, 1.0F);
    EXPECT_DEATH(intersect(target, makeProps(true, 1.0F)),
                 R"(DOM/Properties/DOM_PropertiesResolveUtils:403: areDeeplyEqual\(target, other\))");
}

TEST(DOM_TableProps, TakeTheVisibilityOfTheReplacementWhereTheReferencesAgree)
{
    TableProps target = makeProps(true, boost::none);
    rebaseProperty(target, makeProps(false, boost::none), makeProps(true, boost::none),
                   makeProps(false, boost::none));
    EXPECT_TRUE(target.isVisible());
    rebaseProperty(target, makeProps(false, boost::none), makeProps(true, boost::none),
                   makeProps(true, boost::none));
    EXPECT_FALSE(target.isVisible());
}

} // namespace
} // namespace QN::DOM::TablePropsTest
