#include "DOM/FormulaSyntaxTree/DOM_Axis.h"

#include <gtest/gtest.h>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::AxisTest {

TEST(AxisTest, IsPositionZeroAndNotFixedByDefault)
{
    const ColumnAxis column;
    ASSERT_EQ(column.getID().which(), 0);
    EXPECT_EQ(boost::get<ColumnIndex>(column.getID()), ColumnIndex(0));
    EXPECT_FALSE(column.isFixed());
    const RowAxis row;
    ASSERT_EQ(row.getID().which(), 0);
    EXPECT_EQ(boost::get<RowIndex>(row.getID()), RowIndex(0));
    EXPECT_FALSE(row.isFixed());
}

TEST(AxisTest, KnowsTheLastPositionOfTheLargestTable)
{
    EXPECT_EQ(ColumnAxis::Max, 16383U);
    EXPECT_EQ(RowAxis::Max, 1048575U);
}

TEST(AxisTest, CanBeChanged)
{
    RowAxis row(RowIndex(5), true);
    row.setID(RowID(7));
    row.setFixed(false);
    EXPECT_EQ(row, RowAxis(RowID(7), false));
}

TEST(AxisTest, EqualityCoversTheAlternativeTheValueAndTheFixing)
{
    const RowAxis row(RowIndex(5), true);
    EXPECT_EQ(row, RowAxis(RowIndex(5), true));
    EXPECT_NE(row, RowAxis(RowIndex(6), true));
    EXPECT_NE(row, RowAxis(RowIndex(5), false));
    EXPECT_NE(row, RowAxis(RowID(5), true));
}

TEST(AxisTest, PersistsAPositionAsAlternativeZeroAndAnIdentifierAsOne)
{
    EXPECT_EQ(toJson(RowAxis(RowIndex(5), true)),
              R"({"object":{"_id":{"which":0,"data":{"_value":5}},"_isFixed":true}})");
    EXPECT_EQ(toJson(ColumnAxis(ColumnID(18446744073709551615U), false)),
              R"({"object":{"_id":{"which":1,"data":{"_value":18446744073709551615}},"_isFixed":false}})");
    expectPersists(RowAxis(RowIndex(5), true));
}

TEST(AxisTest, AnIdentifierReadsBackWithAlternativeOneAndTheSameFixing)
{
    for (const bool isFixed : {false, true}) {
        const auto column = fromJson<ColumnAxis>(toJson(ColumnAxis(ColumnID(9), isFixed)));
        ASSERT_EQ(column.getID().which(), 1);
        EXPECT_EQ(boost::get<ColumnID>(column.getID()), ColumnID(9));
        EXPECT_EQ(column.isFixed(), isFixed);
        expectPersists(column);
    }
}

} // namespace QN::DOM::FormulaSyntaxTree::AxisTest
