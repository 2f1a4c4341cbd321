#include "DOM/Properties/DOM_NumberingLevelStyle.h"

#include <gtest/gtest.h>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::NumberingLevelStyleTest {

using namespace Test;

TEST(NumberingLevelStyleTest, SaysNothingByDefault)
{
    const NumberingLevelStyle style;
    EXPECT_EQ(style.getParaProps(), nullptr);
    EXPECT_EQ(style.getRunProps(), nullptr);
    EXPECT_TRUE(style.isEmpty());
    EXPECT_EQ(toJson(style),
              R"({"_paraProps":{"ptr_wrapper":{"id":0}},"_runProps":{"ptr_wrapper":{"id":0}}})");
}

TEST(NumberingLevelStyleTest, HoldsWhatItIsMadeOfAndPersists)
{
    const auto paraProps = makeParaProps(1.0F);
    const auto runProps = makeRunProps(2.0F);
    const NumberingLevelStyle style(paraProps, runProps);
    EXPECT_EQ(style.getParaProps(), paraProps);
    EXPECT_EQ(style.getRunProps(), runProps);
    EXPECT_FALSE(style.isEmpty());
    EXPECT_FALSE(NumberingLevelStyle(std::make_shared<ParaProps>(), nullptr).isEmpty());
    EXPECT_FALSE(NumberingLevelStyle(nullptr, std::make_shared<RunProps>()).isEmpty());
    expectPersists(style);
    expectCopiesAndMoves(style);
}

TEST(NumberingLevelStyleTest, OrdersByTheParagraphAndThenTheRunProperties)
{
    expectAscending<NumberingLevelStyle>({
        NumberingLevelStyle(),
        NumberingLevelStyle(nullptr, makeRunProps(1.0F)),
        NumberingLevelStyle(nullptr, makeRunProps(2.0F)),
        NumberingLevelStyle(makeParaProps(1.0F), nullptr),
        NumberingLevelStyle(makeParaProps(2.0F), nullptr),
    });
}

TEST(NumberingLevelStyleTest, OverrideAndExcludeGoThroughBothProperties)
{
    NumberingLevelStyle target(makeParaProps(1.0F), nullptr);
    override(target, NumberingLevelStyle(makeParaProps(2.0F), makeRunProps(3.0F)));
    EXPECT_EQ(target, NumberingLevelStyle(makeParaProps(2.0F), makeRunProps(3.0F)));
    exclude(target, NumberingLevelStyle(makeParaProps(2.0F), makeRunProps(4.0F)));
    EXPECT_EQ(target, NumberingLevelStyle(nullptr, makeRunProps(3.0F)));
}

} // namespace QN::DOM::NumberingLevelStyleTest
