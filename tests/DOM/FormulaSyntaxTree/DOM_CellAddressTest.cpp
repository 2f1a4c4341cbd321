#include "DOM/FormulaSyntaxTree/DOM_CellAddress.h"

#include <gtest/gtest.h>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::CellAddressTest {

TEST(CellAddressTest, IsTheFirstCellByDefault)
{
    const CellAddress address;
    EXPECT_TRUE(address.getTableAddress() == TableAddress());
    EXPECT_EQ(address.getCol(), ColumnAxis());
    EXPECT_EQ(address.getRow(), RowAxis());
}

TEST(CellAddressTest, KeepsWhatItIsMadeOfAndCanBeChanged)
{
    CellAddress address("doc", std::string("Sheet1"), {{ColumnID(3), true}, {RowIndex(4), false}});
    EXPECT_EQ(address.getDocURL(), "doc");
    EXPECT_TRUE(address.getTableAddress() == TableAddress(std::string("Sheet1")));
    EXPECT_EQ(address.getCol(), ColumnAxis(ColumnID(3), true));
    EXPECT_EQ(address.getRow(), RowAxis(RowIndex(4), false));
    EXPECT_EQ(address.getRef(), std::pair(address.getCol(), address.getRow()));

    address.setCol({ColumnIndex(1), false});
    address.setRow({RowID(2), true});
    address.setTableAddress(UUID());
    EXPECT_EQ(address, CellAddress("doc", UUID(), {{ColumnIndex(1), false}, {RowID(2), true}}));
}

TEST(CellAddressTest, ComparesAllMembers)
{
    const CellAddress address = cell({ColumnIndex(1), false}, {RowIndex(2), false});
    EXPECT_EQ(address, cell({ColumnIndex(1), false}, {RowIndex(2), false}));
    EXPECT_NE(address, cell({ColumnIndex(2), false}, {RowIndex(2), false}));
    EXPECT_NE(address, cell({ColumnIndex(1), true}, {RowIndex(2), false}));
    EXPECT_NE(address, cell({ColumnIndex(1), false}, {RowID(2), false}));
    CellAddress other = address;
    other.setTableAddress(std::string("Sheet2"));
    EXPECT_NE(address, other);
}

TEST(CellAddressTest, PersistsTheColumnBeforeTheRow)
{
    EXPECT_EQ(toJson(CellAddress("", std::string("S"), {{ColumnIndex(1), true}, {RowID(2), false}})),
              R"({"value0":{"value0":{},"_docURL":""},"_tableAddress":{"which":0,"data":"S"},)"
              R"("_ref":{"first":{"_id":{"which":0,"data":{"_value":1}},"_isFixed":true},)"
              R"("second":{"_id":{"which":1,"data":{"_value":2}},"_isFixed":false}}})");
    expectNode(std::make_unique<CellAddress>(
        "doc", UUID(), std::pair<ColumnAxis, RowAxis>({ColumnID(1), true}, {RowID(2), true})));
    expectCopiesAndMoves(cell({ColumnIndex(1), false}, {RowIndex(2), false}));
}

} // namespace QN::DOM::FormulaSyntaxTree::CellAddressTest
