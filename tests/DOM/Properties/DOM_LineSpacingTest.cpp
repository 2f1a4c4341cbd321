#include "DOM/Properties/DOM_LineSpacing.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::LineSpacingTest {

using namespace Test;

static_assert(std::is_same_v<std::underlying_type_t<LineSpacingRule>, unsigned char>);

TEST(LineSpacingTest, IsZeroByTheFirstRuleByDefault)
{
    EXPECT_EQ(LineSpacing().getValue(), 0.0F);
    EXPECT_EQ(LineSpacing().getRule(), static_cast<LineSpacingRule>(0));
    EXPECT_EQ(toJson(LineSpacing()), R"({"_value":0.0,"_rule":0})");
}

TEST(LineSpacingTest, TakesItsValueAndItsRule)
{
    LineSpacing spacing(1.5F, LineSpacingRule::Exactly);
    EXPECT_EQ(toJson(spacing), R"({"_value":1.5,"_rule":1})");
    spacing.setValue(-2.0F);
    spacing.setRule(static_cast<LineSpacingRule>(200));
    EXPECT_EQ(spacing, LineSpacing(-2.0F, static_cast<LineSpacingRule>(200)));
    expectPersists(spacing);
    expectCopiesAndMoves(spacing);
}

TEST(LineSpacingTest, OrdersByValueAndThenByRule)
{
    expectAscending<LineSpacing>({
        LineSpacing(-1.0F, LineSpacingRule::AtLeast),
        LineSpacing(0.0F, LineSpacingRule::Multiple),
        LineSpacing(0.0F, LineSpacingRule::Exactly),
        LineSpacing(0.5F, LineSpacingRule::Multiple),
    });
}

TEST(LineSpacingTest, ANaNIsUnequalToItself)
{
    const LineSpacing spacing(std::numeric_limits<float>::quiet_NaN(), LineSpacingRule::Multiple);
    EXPECT_NE(spacing, spacing);
    EXPECT_FALSE(spacing < spacing);
}

TEST(LineSpacingTest, ARuleBeyondAByteIsRefused)
{
    EXPECT_NE(loadError<LineSpacing>(R"({"_value":0.0,"_rule":256})"), "<loaded>");
}

} // namespace QN::DOM::LineSpacingTest
