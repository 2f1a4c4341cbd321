#include "DOM/Tables/DOM_ViewItemIndexTag.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "Support/RoundTrip.h"
#include "Utils/Public/TableIndices/RowColumnIndex.h"
#include "Utils/Public/TaggedValue.h"

namespace QN::DOM::ViewItemIndexTagTest {

using namespace Test;

using ViewItemIndex = TaggedValue<unsigned long, ViewItemIndexTag>;

TEST(ViewItemIndexTagTest, APlaceInAViewIsNoOtherIndex)
{
    EXPECT_FALSE((std::is_convertible_v<unsigned long, ViewItemIndex>));
    EXPECT_FALSE((std::is_convertible_v<RowIndex, ViewItemIndex>));
    EXPECT_FALSE((std::is_constructible_v<ViewItemIndex, RowIndex>));
    EXPECT_EQ(sizeof(ViewItemIndex), sizeof(unsigned long));
}

TEST(ViewItemIndexTagTest, APlaceCountsComparesAndPersistsAsItsNumber)
{
    ViewItemIndex index(6);
    ++index;
    EXPECT_EQ(index.get(), 7UL);
    EXPECT_LT(ViewItemIndex(6), index);
    EXPECT_EQ(toJson(index), R"({"object":{"_value":7}})");
    EXPECT_EQ(fromJson<ViewItemIndex>(R"({"object":{"_value":7}})"), index);
}

} // namespace QN::DOM::ViewItemIndexTagTest
