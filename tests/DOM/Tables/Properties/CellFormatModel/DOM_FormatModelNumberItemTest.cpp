#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelNumberItem.h"

#include <gtest/gtest.h>

#include "DOM/Tables/Properties/CellFormatModel/FormatSamples.h"

namespace QN::DOM::CellFormatModel::FormatModelNumberItemTest {

TEST(FormatModelNumberItemTest, IsEmptyByDefault)
{
    const NumberItem item;
    EXPECT_EQ(item.getRole(), NumberItem::Role(0));
    EXPECT_EQ(item.getPattern(), "");
    EXPECT_FALSE(item.hasGrouping());
    EXPECT_EQ(item.getDisplayFactor(), 0U);
    EXPECT_TRUE(item.getEmbeddedItems().empty());
}

TEST(FormatModelNumberItemTest, KeepsWhatIsSet)
{
    const NumberItem item = makeNumberItem();
    EXPECT_EQ(item.getRole(), NumberItem::Role::Mantissa);
    EXPECT_EQ(item.getPattern(), "#,##0.00");
    EXPECT_TRUE(item.hasGrouping());
    EXPECT_EQ(item.getDisplayFactor(), 1000U);
    ASSERT_EQ(item.getEmbeddedItems().size(), 2U);
    EXPECT_EQ(item.getEmbeddedItems()[0].first, 3U);
    EXPECT_EQ(boost::get<CurrencyItem>(item.getEmbeddedItems()[0].second), CurrencyItem("kr", 1030U));
    EXPECT_EQ(boost::get<TextItem>(item.getEmbeddedItems()[1].second),
              TextItem(TextItem::Type::Literal, "-"));
}

TEST(FormatModelNumberItemTest, OrdersByItsMembersInTurn)
{
    const auto with = [](auto set) {
        NumberItem item;
        set(item);
        return item;
    };
    expectAscending<NumberItem>({
        NumberItem(),
        with([](NumberItem& item) {
            item.setEmbeddedItems({{0, CurrencyItem()}});
        }),
        with([](NumberItem& item) {
            item.setEmbeddedItems({{0, TextItem()}});
        }),
        with([](NumberItem& item) {
            item.setEmbeddedItems({{1, CurrencyItem()}});
        }),
        with([](NumberItem& item) { item.setDisplayFactor(1); }),
        with([](NumberItem& item) { item.setGrouping(true); }),
        with([](NumberItem& item) { item.setPattern("0"); }),
        with([](NumberItem& item) { item.setRole(NumberItem::Role(1)); }),
    });
}

TEST(FormatModelNumberItemTest, PersistsItsMembersAndEmbeddedItemsAsPairs)
{
    EXPECT_EQ(toJson(NumberItem()), R"({"_role":0,"_pattern":"","_hasGrouping":false,"_displayFactor":0,)"
                                    R"("_embeddedItems":[]})");
    NumberItem item;
    item.setDisplayFactor(18446744073709551615U);
    item.setEmbeddedItems({{18446744073709551615U, TextItem()}});
    EXPECT_EQ(toJson(item),
              R"({"_role":0,"_pattern":"","_hasGrouping":false,"_displayFactor":18446744073709551615,)"
              R"("_embeddedItems":[{"first":18446744073709551615,)"
              R"("second":{"which":1,"data":{"_type":0,"_textValue":""}}}]})");
    expectPersists(NumberItem());
    expectPersists(makeNumberItem());
    expectCopiesAndMoves(makeNumberItem());
}

} // namespace QN::DOM::CellFormatModel::FormatModelNumberItemTest
