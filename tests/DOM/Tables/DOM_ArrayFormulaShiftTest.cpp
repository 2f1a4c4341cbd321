#include "DOM/Tables/DOM_ArrayFormulaShift.h"

#include <gtest/gtest.h>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::ArrayFormulaShiftTest {

TEST(ArrayFormulaShiftTest, KeepsItsCountsWhichAreZeroByDefault)
{
    EXPECT_EQ(ArrayFormulaShift().getRowsCount(), 0U);
    EXPECT_EQ(ArrayFormulaShift().getColumnsCount(), 0U);
    EXPECT_EQ(ArrayFormulaShift(2, 3).getRowsCount(), 2U);
    EXPECT_EQ(ArrayFormulaShift(2, 3).getColumnsCount(), 3U);
}

TEST(ArrayFormulaShiftTest, ComparesBothCounts)
{
    EXPECT_EQ(ArrayFormulaShift(2, 3), ArrayFormulaShift(2, 3));
    EXPECT_NE(ArrayFormulaShift(2, 3), ArrayFormulaShift(3, 3));
    EXPECT_NE(ArrayFormulaShift(2, 3), ArrayFormulaShift(2, 2));
}

TEST(ArrayFormulaShiftTest, PersistsRowsBeforeColumns)
{
    EXPECT_EQ(QN::Test::toJson(ArrayFormulaShift(2, 18446744073709551615U)),
              R"({"_rowsCount":2,"_columnsCount":18446744073709551615})");
    QN::Test::expectPersists(ArrayFormulaShift());
    QN::Test::expectPersists(ArrayFormulaShift(2, 3));
    QN::Test::expectCopiesAndMoves(ArrayFormulaShift(2, 3));
}

} // namespace QN::DOM::ArrayFormulaShiftTest
