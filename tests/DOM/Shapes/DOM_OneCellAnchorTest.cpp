#include "DOM/Shapes/DOM_OneCellAnchor.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::OneCellAnchorTest {

using namespace Test;

namespace {

const TableOffset From(ColumnIndex(1), 2.5F, RowIndex(3), 4.5F);

} // namespace

TEST(OneCellAnchorTest, IsEmptyAtTheFirstCellByDefault)
{
    EXPECT_EQ(OneCellAnchor().getFrom(), TableOffset());
    EXPECT_EQ(OneCellAnchor().getExtent(), Size2D<float>(0.0F, 0.0F));
}

TEST(OneCellAnchorTest, PersistsItsMembersInOrder)
{
    const OneCellAnchor anchor(From, {5.0F, -6.0F});
    EXPECT_EQ(toJson(anchor), R"({"_from":{"_columnIndex":{"_value":1},"_columnOffset":2.5,)"
                              R"("_rowIndex":{"_value":3},"_rowOffset":4.5},)"
                              R"("_extent":{"_width":5.0,"_height":-6.0}})");
    expectPersists(anchor);
    expectPersists(OneCellAnchor());
}

TEST(OneCellAnchorTest, SettersReplaceEachPart)
{
    OneCellAnchor anchor;
    anchor.setFrom(From);
    anchor.setExtent({5.0F, 6.0F});
    EXPECT_EQ(anchor.getFrom(), From);
    EXPECT_EQ(anchor, OneCellAnchor(From, {5.0F, 6.0F}));
}

TEST(OneCellAnchorTest, OrdersByPlaceThenByExtent)
{
    expectAscending<OneCellAnchor>({
        OneCellAnchor(),
        OneCellAnchor(TableOffset(), {0.0F, 1.0F}),
        OneCellAnchor(TableOffset(), {1.0F, 0.0F}),
        OneCellAnchor(From, {0.0F, 0.0F}),
    });
}

TEST(OneCellAnchorTest, IsAValueWithoutVirtualFunctions)
{
    static_assert(!std::is_polymorphic_v<OneCellAnchor>);
    expectCopiesAndMoves(OneCellAnchor(From, {5.0F, 6.0F}));
}

} // namespace QN::DOM::OneCellAnchorTest
