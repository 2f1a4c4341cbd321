#include "DOM/Tables/Filters/DOM_TableFilterInfo.h"

#include <gtest/gtest.h>

#include "DOM/FamilyChecks.h"
#include "DOM/Tables/Filters/DOM_ValuesTableFilter.h"
#include "DOM/Tables/TablePrinters.h"

namespace QN::DOM::TableFilterInfoTest {
namespace {

using namespace QN::Test;

TableRange makeRange(std::uint64_t beginRow, std::uint64_t endRow)
{
    return {RowIndex(beginRow), RowIndex(endRow), ColumnIndex(2), ColumnIndex(5)};
}

TableFilterInfo makeInfo()
{
    TableFilterInfo info(makeRange(1, 9));
    info.setFilter(std::make_unique<ValuesTableFilter>(ColumnIndex(3)));
    return info;
}

TEST(DOM_TableFilterInfo, ReachesToTheLargestIndexByDefault)
{
    EXPECT_EQ(TableFilterInfo().getFilter(), nullptr);
    expectText(TableFilterInfo(),
               R"({"_filterRange":{"_beginRow":{"_value":0},"_endRow":{"_value":18446744073709551615},)"
               R"("_beginColumn":{"_value":0},"_endColumn":{"_value":18446744073709551615}},)"
               R"("_filter":{"polymorphic_id":0}})");
}

TEST(DOM_TableFilterInfo, HasNoFilterUntilOneIsSet)
{
    TableFilterInfo info(makeRange(1, 9));
    EXPECT_EQ(info.getFilter(), nullptr);
    info.setFilter(std::make_unique<ValuesTableFilter>());
    EXPECT_NE(info.getFilter(), nullptr);
}

TEST(DOM_TableFilterInfo, LeavesTheHeaderOut)
{
    EXPECT_EQ(makeInfo().getFilterRange(), makeRange(1, 9));
    EXPECT_EQ(makeInfo().getFilterRangeWithoutHeader(), makeRange(2, 9));
    EXPECT_EQ(TableFilterInfo(makeRange(4, 6)).getFilterRangeWithoutHeader(), makeRange(5, 6));
}

TEST(DOM_TableFilterInfoDeathTest, NeedsARowOfData)
{
    EXPECT_DEATH(TableFilterInfo(makeRange(4, 5)),
                 R"(DOM_TableFilterInfo\.cpp:[0-9]+: filterRange\.getRowCount\(\) > 1)");
}

/// A range from row 4 and column 1 on, without a filter.
std::string makeText(const std::string& endRow, const std::string& endColumn)
{
    return R"({"_filterRange":{"_beginRow":{"_value":4},"_endRow":{"_value":)" + endRow +
           R"(},"_beginColumn":{"_value":1},"_endColumn":{"_value":)" + endColumn +
           R"(}},"_filter":{"polymorphic_id":0}})";
}

TEST(DOM_TableFilterInfoDeathTest, HasNothingButItsHeaderWhenAFileSaysSo)
{
    EXPECT_EQ(fromJson<TableFilterInfo>(makeText("6", "2")).getFilterRangeWithoutHeader(),
              TableRange(RowIndex(5), RowIndex(6), ColumnIndex(1), ColumnIndex(2)));
    const auto info = fromJson<TableFilterInfo>(makeText("5", "2"));
    EXPECT_DEATH(info.getFilterRangeWithoutHeader(),
                 "Utils/Public/TableIndices/TableRange:229: _beginRow < _endRow");
}

TEST(DOM_TableFilterInfo, IsRefusedWithoutCells)
{
    for (const std::string& text :
         {makeText("4", "2"), makeText("3", "2"), makeText("6", "1"), makeText("6", "0")}) {
        EXPECT_EQ(loadError<TableFilterInfo>(text), "A range of cells is empty or reversed") << text;
    }
}

TEST(DOM_TableFilterInfo, WritesItsRangeAndItsFilter)
{
    expectText(
        makeInfo(),
        R"({"_filterRange":{"_beginRow":{"_value":1},"_endRow":{"_value":9},"_beginColumn":{"_value":2},)"
        R"("_endColumn":{"_value":5}},"_filter":)" +
            makePolymorphicJson(
                "QN::DOM::ValuesTableFilter",
                R"({"value0":{"value0":{},"_columnIndex":{"_value":3}},"_valuesToShow":[]})") +
            "}");
    expectCopiesAndMoves(makeInfo());
}

TEST(DOM_TableFilterInfo, DiffersByItsRangeAndByItsFilter)
{
    EXPECT_EQ(makeInfo(), makeInfo());
    TableFilterInfo info(makeRange(1, 10));
    info.setFilter(std::make_unique<ValuesTableFilter>(ColumnIndex(3)));
    EXPECT_NE(info, makeInfo());
    info = makeInfo();
    info.setFilter(std::make_unique<ValuesTableFilter>(ColumnIndex(4)));
    EXPECT_NE(info, makeInfo());
    info.setFilter(nullptr);
    EXPECT_NE(info, makeInfo());
    EXPECT_EQ(info, TableFilterInfo(makeRange(1, 9)));
}

TEST(DOM_TableFilterInfo, SharesNoFilterWithItsCopy)
{
    const TableFilterInfo source = makeInfo();
    const TableFilterInfo copy(source);
    EXPECT_NE(copy.getFilter().get(), source.getFilter().get());
    static_cast<ValuesTableFilter&>(*copy.getFilter()).setColumnIndex(ColumnIndex(0));
    EXPECT_NE(copy, source);
    EXPECT_EQ(source, makeInfo());
}

} // namespace
} // namespace QN::DOM::TableFilterInfoTest
