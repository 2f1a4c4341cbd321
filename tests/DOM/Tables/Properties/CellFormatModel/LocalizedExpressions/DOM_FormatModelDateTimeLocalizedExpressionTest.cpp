#include "DOM/Tables/Properties/CellFormatModel/LocalizedExpressions/DOM_FormatModelDateTimeLocalizedExpression.h"

#include <gtest/gtest.h>

#include "DOM/Tables/Properties/CellFormatModel/FormatSamples.h"

namespace QN::DOM::CellFormatModel::FormatModelDateTimeLocalizedExpressionTest {

namespace {

DateTimePatternItemSet makeSet(std::initializer_list<unsigned> tokens)
{
    DateTimePatternItemSet set;
    for (const unsigned token : tokens) {
        set.insert({DateTimePatternToken(token), 0});
    }
    return set;
}

unsigned derive(std::initializer_list<unsigned> tokens)
{
    return static_cast<unsigned>(DateTimeLocalizedExpression(makeSet(tokens)).getFormatType());
}

const char* const Failure =
    "DOM/Tables/Properties/CellFormatModel/LocalizedExpressions/DOM_FormatModelDateTimeLocalizedExpression:"
    "[0-9]+: Neither date nor time is set";

} // namespace

TEST(FormatModelDateTimeLocalizedExpressionTest, HasNoItemsAndTypeZeroToLoadInto)
{
    const DateTimeLocalizedExpression expression;
    EXPECT_TRUE(expression.getDateTimePatternTokenSet().empty());
    EXPECT_EQ(static_cast<int>(expression.getFormatType()), 0);
    EXPECT_EQ(toJson(expression), R"({"_dateTimePatternItemSet":[],"_formatType":0})");
}

TEST(FormatModelDateTimeLocalizedExpressionTest, DerivesItsTypeFromTheTokens)
{
    for (unsigned token = 0; token < 4; ++token) {
        EXPECT_EQ(derive({token}), 4U) << token;
    }
    for (unsigned token = 4; token < 7; ++token) {
        EXPECT_EQ(derive({token}), 5U) << token;
    }
    EXPECT_EQ(derive({0, 1, 2, 3}), 4U);
    EXPECT_EQ(derive({4, 5, 6}), 5U);
    EXPECT_EQ(derive({3, 4}), 6U);
    EXPECT_EQ(derive({0, 7}), 4U);
    EXPECT_EQ(derive({6, 255}), 5U);
}

TEST(FormatModelDateTimeLocalizedExpressionDeathTest, TokensOfNeitherADateNorATimeStopTheProcess)
{
    EXPECT_DEATH(DateTimeLocalizedExpression(makeSet({})), Failure);
    EXPECT_DEATH(DateTimeLocalizedExpression(makeSet({7})), Failure);
    EXPECT_DEATH(DateTimeLocalizedExpression(makeSet({7, 255})), Failure);
    EXPECT_DEATH(DateTimeLocalizedExpression(DateTimeDefaultType(3)), Failure);
}

TEST(FormatModelDateTimeLocalizedExpressionTest, TheStandardFormatsHaveTheirTokensInThePlainForm)
{
    const DateTimeLocalizedExpression date(DateTimeDefaultType(0));
    EXPECT_EQ(date.getDateTimePatternTokenSet(), makeSet({1, 2, 3}));
    EXPECT_EQ(static_cast<int>(date.getFormatType()), 4);
    const DateTimeLocalizedExpression time(DateTimeDefaultType(1));
    EXPECT_EQ(time.getDateTimePatternTokenSet(), makeSet({4, 5, 6}));
    EXPECT_EQ(static_cast<int>(time.getFormatType()), 5);
    const DateTimeLocalizedExpression both(DateTimeDefaultType(2));
    EXPECT_EQ(both.getDateTimePatternTokenSet(), makeSet({1, 2, 3, 4, 5}));
    EXPECT_EQ(static_cast<int>(both.getFormatType()), 6);
}

TEST(FormatModelDateTimeLocalizedExpressionTest, OrdersByItsItemsThenByItsType)
{
    const auto load = [](const std::string& json) { return fromJson<DateTimeLocalizedExpression>(json); };
    expectAscending<DateTimeLocalizedExpression>(
        {DateTimeLocalizedExpression(), load(R"({"_dateTimePatternItemSet":[],"_formatType":4})"),
         load(R"({"_dateTimePatternItemSet":[{"token":1,"props":0}],"_formatType":0})"),
         load(R"({"_dateTimePatternItemSet":[{"token":1,"props":0},{"token":2,"props":0}],"_formatType":0})"),
         load(R"({"_dateTimePatternItemSet":[{"token":1,"props":1}],"_formatType":0})"),
         load(R"({"_dateTimePatternItemSet":[{"token":2,"props":0}],"_formatType":0})")});
}

TEST(FormatModelDateTimeLocalizedExpressionTest, ALoadTakesTheTypeAsItStands)
{
    const auto expression = fromJson<DateTimeLocalizedExpression>(
        R"({"_dateTimePatternItemSet":[{"token":1,"props":0}],"_formatType":99})");
    EXPECT_EQ(static_cast<int>(expression.getFormatType()), 99);
    expectRoundTrip(expression);
}

TEST(FormatModelDateTimeLocalizedExpressionTest, ALoadKeepsTheFirstOfTwoItemsOfOneTokenAndSortsThem)
{
    const auto expression = fromJson<DateTimeLocalizedExpression>(
        R"({"_dateTimePatternItemSet":[{"token":5,"props":1},{"token":1,"props":0},{"token":5,"props":2}],)"
        R"("_formatType":6})");
    EXPECT_EQ(toJson(expression),
              R"({"_dateTimePatternItemSet":[{"token":1,"props":0},{"token":5,"props":1}],"_formatType":6})");
}

TEST(FormatModelDateTimeLocalizedExpressionTest, PersistsTheItemsAndTheType)
{
    EXPECT_EQ(toJson(makeLocalized()),
              R"({"_dateTimePatternItemSet":[{"token":3,"props":1},{"token":4,"props":0}],"_formatType":6})");
    expectPersists(DateTimeLocalizedExpression());
    expectPersists(makeLocalized());
    expectCopiesAndMoves(makeLocalized());
}

} // namespace QN::DOM::CellFormatModel::FormatModelDateTimeLocalizedExpressionTest
