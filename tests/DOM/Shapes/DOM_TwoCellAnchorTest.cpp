#include "DOM/Shapes/DOM_TwoCellAnchor.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::TwoCellAnchorTest {

using namespace Test;

namespace {

const TableOffset Early(ColumnIndex(1), 2.5F, RowIndex(3), 4.5F);
const TableOffset Late(ColumnIndex(7), 0.0F, RowIndex(8), 0.0F);

} // namespace

TEST(TwoCellAnchorTest, StandsInTheFirstCellByDefault)
{
    EXPECT_EQ(TwoCellAnchor().getFrom(), TableOffset());
    EXPECT_EQ(TwoCellAnchor().getTo(), TableOffset());
}

TEST(TwoCellAnchorTest, PersistsItsMembersInOrder)
{
    const TwoCellAnchor anchor(Early, Late);
    EXPECT_EQ(toJson(anchor), R"({"_from":{"_columnIndex":{"_value":1},"_columnOffset":2.5,)"
                              R"("_rowIndex":{"_value":3},"_rowOffset":4.5},)"
                              R"("_to":{"_columnIndex":{"_value":7},"_columnOffset":0.0,)"
                              R"("_rowIndex":{"_value":8},"_rowOffset":0.0}})");
    expectPersists(anchor);
}

TEST(TwoCellAnchorTest, TheEndMayPrecedeTheBeginning)
{
    const TwoCellAnchor reversed(Late, Early);
    EXPECT_EQ(reversed.getFrom(), Late);
    EXPECT_EQ(reversed.getTo(), Early);
    expectPersists(reversed);
}

TEST(TwoCellAnchorTest, SettersReplaceEachPart)
{
    TwoCellAnchor anchor;
    anchor.setFrom(Early);
    anchor.setTo(Late);
    EXPECT_EQ(anchor, TwoCellAnchor(Early, Late));
}

TEST(TwoCellAnchorTest, OrdersByBeginningThenByEnd)
{
    expectAscending<TwoCellAnchor>({TwoCellAnchor(), TwoCellAnchor(TableOffset(), Late),
                                    TwoCellAnchor(Early, TableOffset()), TwoCellAnchor(Early, Late),
                                    TwoCellAnchor(Late, Early)});
}

TEST(TwoCellAnchorTest, IsAValueWithoutVirtualFunctions)
{
    static_assert(!std::is_polymorphic_v<TwoCellAnchor>);
    expectCopiesAndMoves(TwoCellAnchor(Early, Late));
}

} // namespace QN::DOM::TwoCellAnchorTest
