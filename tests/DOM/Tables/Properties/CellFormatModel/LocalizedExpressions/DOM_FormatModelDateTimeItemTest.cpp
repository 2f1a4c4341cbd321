#include "DOM/Tables/Properties/CellFormatModel/LocalizedExpressions/DOM_FormatModelDateTimeItem.h"

#include <gtest/gtest.h>

#include "DOM/Tables/Properties/CellFormatModel/FormatSamples.h"

namespace QN::DOM::CellFormatModel::FormatModelDateTimeItemTest {

TEST(FormatModelDateTimeItemTest, IsOfTypeZeroWithoutDecimalPlacesByDefault)
{
    EXPECT_EQ(DateTimeItem().getType(), DateTimeItem::Type(0));
    EXPECT_FALSE(DateTimeItem().getDecimalPlaces().has_value());
}

TEST(FormatModelDateTimeItemTest, KeepsWhatIsSet)
{
    DateTimeItem item(DateTimeItem::Type::Second, 3);
    EXPECT_EQ(item.getType(), DateTimeItem::Type(14));
    EXPECT_EQ(*item.getDecimalPlaces(), 3);
    item.setType(DateTimeItem::Type(200));
    item.setDecimalPlaces(boost::none);
    EXPECT_EQ(item, DateTimeItem(DateTimeItem::Type(200), boost::none));
}

TEST(FormatModelDateTimeItemTest, IsATimeForTypesZeroOneAndSixToSeventeenOnly)
{
    for (unsigned type = 0; type < 256; ++type) {
        const bool isTime = type <= 1 || (type >= 6 && type <= 17);
        EXPECT_EQ(DateTimeItem(DateTimeItem::Type(type), boost::none).isTime(), isTime) << type;
    }
}

TEST(FormatModelDateTimeItemTest, OrdersByTypeThenDecimalPlaces)
{
    using Type = DateTimeItem::Type;
    expectAscending<DateTimeItem>({DateTimeItem(Type(1), boost::none), DateTimeItem(Type(1), 0),
                                   DateTimeItem(Type(1), 255), DateTimeItem(Type(2), boost::none)});
}

TEST(FormatModelDateTimeItemTest, PersistsTypeAndDecimalPlacesAsBytes)
{
    EXPECT_EQ(toJson(DateTimeItem(DateTimeItem::Type(255), 255)),
              R"({"_type":255,"_decimalPlaces":{"hasValue":true,"value":255}})");
    EXPECT_EQ(loadError<DateTimeItem>(R"({"_type":256,"_decimalPlaces":{"hasValue":false}})"),
              "rapidjson internal assertion failure: value is within the range of its type");
    expectPersists(DateTimeItem());
    expectPersists(DateTimeItem(DateTimeItem::Type::Second, 3));
    expectCopiesAndMoves(DateTimeItem(DateTimeItem::Type::Second, 3));
}

} // namespace QN::DOM::CellFormatModel::FormatModelDateTimeItemTest
