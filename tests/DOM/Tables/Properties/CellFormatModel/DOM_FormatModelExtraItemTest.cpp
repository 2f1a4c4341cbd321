#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelExtraItem.h"

#include <gtest/gtest.h>

#include "DOM/Tables/Properties/CellFormatModel/FormatSamples.h"

namespace QN::DOM::CellFormatModel::FormatModelExtraItemTest {

TEST(FormatModelExtraItemTest, IsOfTypeZeroByDefaultAndKeepsWhatIsSet)
{
    ExtraItem item;
    EXPECT_EQ(item.getType(), ExtraItem::Type(0));
    item.setType(ExtraItem::Type(1000));
    EXPECT_EQ(item, ExtraItem(ExtraItem::Type(1000)));
    expectAscending<ExtraItem>({ExtraItem(), ExtraItem(ExtraItem::Type(1)), item});
}

TEST(FormatModelExtraItemTest, PersistsItsType)
{
    EXPECT_EQ(toJson(ExtraItem(ExtraItem::Type(1000))), R"({"_type":1000})");
    expectPersists(ExtraItem(ExtraItem::Type(1000)));
    expectCopiesAndMoves(ExtraItem(ExtraItem::Type(2)));
}

} // namespace QN::DOM::CellFormatModel::FormatModelExtraItemTest
