#include "DOM/Properties/DOM_SpacingValue.h"

#include <gtest/gtest.h>

#include <limits>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::SpacingValueTest {

using namespace Test;

TEST(SpacingValueTest, IsZeroByDefault)
{
    EXPECT_FALSE(SpacingValue().isAuto());
    EXPECT_EQ(SpacingValue().getValue(), 0.0F);
    EXPECT_EQ(toJson(SpacingValue()), R"({"_value":0.0})");
}

TEST(SpacingValueTest, MinusOneIsAutomaticHoweverItIsStored)
{
    EXPECT_TRUE(SpacingValue(-1.0F).isAuto());
    EXPECT_TRUE(SpacingValue::createAutoValue().isAuto());
    SpacingValue value;
    value.setValue(-1.0F);
    EXPECT_TRUE(value.isAuto());
    value.setValue(2.0F);
    EXPECT_FALSE(value.isAuto());
    value.setAuto();
    EXPECT_EQ(value, SpacingValue::createAutoValue());
    EXPECT_EQ(toJson(value), R"({"_value":-1.0})");
}

TEST(SpacingValueTest, OtherNegativeNumbersAreOrdinary)
{
    EXPECT_FALSE(SpacingValue(-1.5F).isAuto());
    EXPECT_EQ(SpacingValue(-1.5F).getValue(), -1.5F);
}

TEST(SpacingValueDeathTest, AnAutomaticValueIsNotRead)
{
    EXPECT_DEATH(SpacingValue::createAutoValue().getValue(),
                 "DOM/Properties/DOM_SpacingValue:46: !isAuto\\(\\)");
}

TEST(SpacingValueTest, SavingAndComparingReadTheStoredNumber)
{
    expectPersists(SpacingValue());
    expectPersists(SpacingValue::createAutoValue());
    expectCopiesAndMoves(SpacingValue::createAutoValue());
    expectAscending<SpacingValue>(
        {SpacingValue(-1.5F), SpacingValue::createAutoValue(), SpacingValue(0.0F), SpacingValue(0.25F)});
}

TEST(SpacingValueTest, ANaNIsUnequalToEverything)
{
    const SpacingValue nan(std::numeric_limits<float>::quiet_NaN());
    EXPECT_NE(nan, nan);
    EXPECT_FALSE(nan.isAuto());
    EXPECT_FALSE(nan < SpacingValue(0.0F));
    EXPECT_FALSE(SpacingValue(0.0F) < nan);
}

} // namespace QN::DOM::SpacingValueTest
