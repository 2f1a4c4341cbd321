#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelTextItem.h"

#include <gtest/gtest.h>

#include "DOM/Tables/Properties/CellFormatModel/FormatSamples.h"

namespace QN::DOM::CellFormatModel::FormatModelTextItemTest {

TEST(FormatModelTextItemTest, IsEmptyByDefault)
{
    EXPECT_EQ(TextItem().getType(), TextItem::Type(0));
    EXPECT_EQ(TextItem().getTextValue(), "");
}

TEST(FormatModelTextItemTest, KeepsWhatIsSetAndOrdersByTypeThenText)
{
    TextItem item(TextItem::Type::CellText, "@");
    EXPECT_EQ(item.getTextValue(), "@");
    item.setType(TextItem::Type(9));
    item.setTextValue("a");
    EXPECT_EQ(item, TextItem(TextItem::Type(9), "a"));
    expectAscending<TextItem>({TextItem(), TextItem(TextItem::Type(0), "b"), TextItem(TextItem::Type(1), "a"),
                               TextItem(TextItem::Type(1), "b")});
}

TEST(FormatModelTextItemTest, PersistsTypeAndText)
{
    EXPECT_EQ(toJson(TextItem(TextItem::Type(9), "a")), R"({"_type":9,"_textValue":"a"})");
    expectPersists(TextItem(TextItem::Type(9), "a"));
    expectCopiesAndMoves(TextItem(TextItem::Type(9), "a"));
}

} // namespace QN::DOM::CellFormatModel::FormatModelTextItemTest
