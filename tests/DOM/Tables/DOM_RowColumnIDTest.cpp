#include "DOM/Tables/DOM_RowColumnID.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "Support/RoundTrip.h"

namespace QN::DOM::RowColumnIDTest {

TEST(RowColumnIDTest, TheLargestTableHasItsSize)
{
    EXPECT_EQ(MaxRows, 1048576U);
    EXPECT_EQ(MaxColumns, 16384U);
}

TEST(RowColumnIDTest, IdentifiersOfRowsAndColumnsAreDifferentTypes)
{
    EXPECT_FALSE((std::is_convertible_v<RowID, ColumnID>));
    EXPECT_FALSE((std::is_constructible_v<ColumnID, RowID>));
    EXPECT_EQ(sizeof(RowID), 8U);
    EXPECT_EQ(RowID().get(), 0U);
}

TEST(RowColumnIDTest, AnIdentifierPersistsAsATaggedNumberOfSixtyFourBits)
{
    EXPECT_EQ(QN::Test::toJson(RowID(18446744073709551615U)),
              R"({"object":{"_value":18446744073709551615}})");
    QN::Test::expectPersists(RowID(18446744073709551615U));
    QN::Test::expectPersists(ColumnID(1));
}

} // namespace QN::DOM::RowColumnIDTest
