#include "DOM/Tables/Properties/CellFormatModel/LocalizedExpressions/DOM_FormatModelDateTimePatternItem.h"

#include <gtest/gtest.h>

#include "DOM/Tables/Properties/CellFormatModel/FormatSamples.h"

#include <boost/functional/hash.hpp>

namespace QN::DOM::CellFormatModel::FormatModelDateTimePatternItemTest {

namespace {

DateTimePatternItem makeItem(unsigned token, unsigned props)
{
    return {DateTimePatternToken(token), static_cast<std::uint8_t>(props)};
}

} // namespace

TEST(FormatModelDateTimePatternItemTest, OrdersByTokenThenByProps)
{
    EXPECT_EQ(makeItem(1, 2), makeItem(1, 2));
    EXPECT_NE(makeItem(1, 2), makeItem(1, 1));
    EXPECT_NE(makeItem(1, 2), makeItem(2, 2));
    EXPECT_LT(makeItem(1, 1), makeItem(1, 2));
    EXPECT_LT(makeItem(1, 2), makeItem(2, 0));
    EXPECT_EQ(DateTimePatternItem(), makeItem(0, 0));
}

TEST(FormatModelDateTimePatternItemTest, HashesTokenAndPropsInThisOrderStartingFromZero)
{
    std::size_t expected = 0;
    boost::hash_combine(expected, static_cast<unsigned char>(3));
    boost::hash_combine(expected, static_cast<unsigned char>(1));
    EXPECT_EQ(hash_value(makeItem(3, 1)), expected);
    EXPECT_NE(hash_value(makeItem(1, 3)), expected);
}

TEST(FormatModelDateTimePatternItemTest, TheOrderByTokenAloneHoldsEachTokenOnce)
{
    const DateTimePatternItemTokenLess less;
    EXPECT_TRUE(less(makeItem(1, 9), makeItem(2, 0)));
    EXPECT_FALSE(less(makeItem(1, 0), makeItem(1, 9)));
    const DateTimePatternItemSet set{makeItem(2, 0), makeItem(1, 2), makeItem(1, 0)};
    ASSERT_EQ(set.size(), 2U);
    EXPECT_EQ(*set.begin(), makeItem(1, 2));
}

TEST(FormatModelDateTimePatternItemTest, PersistsAsTwoBytesWithoutUnderscores)
{
    EXPECT_EQ(toJson(makeItem(255, 254)), R"({"object":{"token":255,"props":254}})");
    expectPersists(makeItem(3, 1));
    EXPECT_EQ(loadError<DateTimePatternItem>(R"({"object":{"token":256,"props":0}})"),
              "rapidjson internal assertion failure: value is within the range of its type");
}

} // namespace QN::DOM::CellFormatModel::FormatModelDateTimePatternItemTest
