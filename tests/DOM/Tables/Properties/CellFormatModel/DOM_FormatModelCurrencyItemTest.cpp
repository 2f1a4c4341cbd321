#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelCurrencyItem.h"

#include <gtest/gtest.h>

#include "DOM/Tables/Properties/CellFormatModel/FormatSamples.h"

namespace QN::DOM::CellFormatModel::FormatModelCurrencyItemTest {

TEST(FormatModelCurrencyItemTest, IsEmptyByDefault)
{
    EXPECT_EQ(CurrencyItem().getCurrencySymbol(), "");
    EXPECT_FALSE(CurrencyItem().getLanguage().has_value());
}

TEST(FormatModelCurrencyItemTest, KeepsWhatIsSet)
{
    CurrencyItem item("kr", 1030U);
    EXPECT_EQ(item.getCurrencySymbol(), "kr");
    EXPECT_TRUE(item.getLanguage() == 1030U);
    item.setCurrencySymbol("EUR");
    item.setLanguage(boost::none);
    EXPECT_EQ(item, CurrencyItem("EUR"));
}

TEST(FormatModelCurrencyItemTest, OrdersBySymbolThenLanguage)
{
    expectAscending<CurrencyItem>(
        {CurrencyItem(), CurrencyItem("a"), CurrencyItem("a", 1U), CurrencyItem("a", 2U), CurrencyItem("b")});
}

TEST(FormatModelCurrencyItemTest, PersistsSymbolAndLanguage)
{
    EXPECT_EQ(toJson(CurrencyItem("kr", 4294967295U)),
              R"({"_currencySymbol":"kr","_language":{"hasValue":true,"value":4294967295}})");
    expectPersists(CurrencyItem());
    expectPersists(CurrencyItem("kr", 1030U));
    expectCopiesAndMoves(CurrencyItem("kr", 1030U));
}

} // namespace QN::DOM::CellFormatModel::FormatModelCurrencyItemTest
