#include "DOM/Properties/DOM_PageNumber.h"

#include <gtest/gtest.h>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::PageNumberTest {

using namespace Test;

TEST(PageNumberTest, StandsAtTheFirstAlignmentWithoutAStyleByDefault)
{
    const PageNumber number;
    EXPECT_EQ(static_cast<int>(number.getAlignment()), 0);
    EXPECT_TRUE(number.getRunStyle().isEmpty());
    EXPECT_FALSE(number.getNumberFormatType());
    EXPECT_EQ(toJson(number),
              R"({"_alignment":0,"_style":)" + toJson(RunStyle()) + R"(,"_format":{"hasValue":false}})");
}

TEST(PageNumberTest, TakesAllThreeMembers)
{
    PageNumber number(HeaderFooterAlignment::Right, withParent<RunStyle>(SomeUUID),
                      NumberFormatType::UpperRoman);
    EXPECT_EQ(number.getAlignment(), HeaderFooterAlignment::Right);
    EXPECT_EQ(number.getRunStyle(), withParent<RunStyle>(SomeUUID));
    EXPECT_SAME(number.getNumberFormatType(), NumberFormatType::UpperRoman);
    expectPersists(number);
    expectCopiesAndMoves(number);

    number.setAlignment(static_cast<HeaderFooterAlignment>(77));
    number.setRunStyle(RunStyle());
    number.setNumberFormatType(boost::none);
    EXPECT_EQ(number, PageNumber(static_cast<HeaderFooterAlignment>(77), RunStyle(), boost::none));
    expectPersists(number);
}

TEST(PageNumberTest, EachMemberTakesPartInEquality)
{
    const PageNumber number;
    EXPECT_EQ(number, PageNumber());
    EXPECT_NE(number, PageNumber(HeaderFooterAlignment::Center, RunStyle(), boost::none));
    EXPECT_NE(number, PageNumber(HeaderFooterAlignment::Left, withParent<RunStyle>(SomeUUID), boost::none));
    EXPECT_NE(number, PageNumber(HeaderFooterAlignment::Left, RunStyle(), NumberFormatType::Decimal));
}

} // namespace QN::DOM::PageNumberTest
