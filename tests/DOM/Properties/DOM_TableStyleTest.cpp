#include "DOM/Properties/DOM_TableStyle.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::TableStyleTest {

using namespace Test;

TEST(TableStyleTest, SaysNothingByDefault)
{
    const TableStyle style;
    EXPECT_EQ(style.getTableProps(), nullptr);
    EXPECT_EQ(style.getCellProps(), nullptr);
    EXPECT_EQ(style.getParaProps(), nullptr);
    EXPECT_EQ(style.getRunProps(), nullptr);
    EXPECT_EQ(style.getSharedDefaultRowStyle(), nullptr);
    EXPECT_EQ(style.getSharedDefaultColumnStyle(), nullptr);
    EXPECT_FALSE(style.getParentUUID());
    EXPECT_TRUE(style.isEmpty());
}

TEST(TableStyleTest, ADefaultWritesEachKeyInOrder)
{
    EXPECT_EQ(toJson(TableStyle()),
              R"({"_tableProps":{"ptr_wrapper":{"id":0}},"_cellProps":{"ptr_wrapper":{"id":0}},)"
              R"("_paraProps":{"ptr_wrapper":{"id":0}},"_runProps":{"ptr_wrapper":{"id":0}},)"
              R"("_defaultRowStyle":{"id":0},"_defaultColumnStyle":{"id":0},)"
              R"("_parentUUID":{"_id":"00000000-0000-0000-0000-000000000000"}})");
}

TEST(TableStyleTest, TheDefaultRowAndColumnStylesAreTheEmptyOnesWhereThereAreNone)
{
    const TableStyle style;
    EXPECT_TRUE(style.getDefaultRowStyle().isEmpty());
    EXPECT_TRUE(style.getDefaultColumnStyle().isEmpty());
    EXPECT_EQ(&style.getDefaultRowStyle(), &style.getDefaultRowStyle());
    EXPECT_EQ(&style.getDefaultRowStyle(), &TableStyle().getDefaultRowStyle());
    EXPECT_EQ(&style.getDefaultColumnStyle(), &TableStyle().getDefaultColumnStyle());
}

TEST(TableStyleTest, ASetMemberIsReadBackAndPersists)
{
    const auto style = with<TableStyle>([](TableStyle& s) {
        s.setTableProps(makeTableProps(1.0F));
        s.setCellProps(makeCellProps(2.0F));
        s.setParaProps(makeParaProps(3.0F));
        s.setRunProps(makeRunProps(4.0F));
        s.getSharedDefaultRowStyle() = share(withParent<RowStyle>(SomeUUID));
        s.getSharedDefaultColumnStyle() = share(withParent<ColumnStyle>(OtherUUID));
        s.setParentUUID(SomeUUID);
    });
    EXPECT_EQ(*style.getTableProps(), *makeTableProps(1.0F));
    EXPECT_EQ(*style.getCellProps(), *makeCellProps(2.0F));
    EXPECT_EQ(*style.getParaProps(), *makeParaProps(3.0F));
    EXPECT_EQ(*style.getRunProps(), *makeRunProps(4.0F));
    EXPECT_EQ(style.getDefaultRowStyle(), withParent<RowStyle>(SomeUUID));
    EXPECT_EQ(style.getDefaultColumnStyle(), withParent<ColumnStyle>(OtherUUID));
    EXPECT_EQ(style.getParentUUID(), SomeUUID);
    expectPersists(style);
    expectPersists(TableStyle());
    expectCopiesAndMoves(style);
}

TEST(TableStyleTest, OneDefaultCellStyleOfRowsAndColumnsIsWrittenOnceAndStaysOne)
{
    const auto cellStyle = share(withParent<CellStyle>(OtherUUID));
    const auto style = with<TableStyle>([&](TableStyle& s) {
        s.getSharedDefaultRowStyle() =
            share(with<RowStyle>([&](RowStyle& row) { row.getSharedDefaultCellStyle() = cellStyle; }));
        s.getSharedDefaultColumnStyle() = share(
            with<ColumnStyle>([&](ColumnStyle& column) { column.getSharedDefaultCellStyle() = cellStyle; }));
    });
    const std::string json = toJson(style);
    EXPECT_EQ(json.find(OtherUUID.toString()), json.rfind(OtherUUID.toString()));
    const auto loaded = fromJson<TableStyle>(json);
    EXPECT_EQ(loaded, style);
    EXPECT_EQ(loaded.getDefaultRowStyle().getSharedDefaultCellStyle(),
              loaded.getDefaultColumnStyle().getSharedDefaultCellStyle());
}

TEST(TableStyleTest, LoadingReplacesWhatWasThere)
{
    auto style = withParent<TableStyle>(SomeUUID);
    style.setTableProps(makeTableProps(1.0F));
    style.getSharedDefaultRowStyle() = share(withParent<RowStyle>(SomeUUID));
    loadJson(toJson(TableStyle()), style);
    EXPECT_EQ(style, TableStyle());
}

TEST(TableStyleTest, AnySingleMemberMakesItNonEmpty)
{
    EXPECT_FALSE(
        with<TableStyle>([](TableStyle& s) { s.setTableProps(std::make_shared<TableProps>()); }).isEmpty());
    EXPECT_FALSE(
        with<TableStyle>([](TableStyle& s) { s.setCellProps(std::make_shared<CellProps>()); }).isEmpty());
    EXPECT_FALSE(
        with<TableStyle>([](TableStyle& s) { s.setParaProps(std::make_shared<ParaProps>()); }).isEmpty());
    EXPECT_FALSE(
        with<TableStyle>([](TableStyle& s) { s.setRunProps(std::make_shared<RunProps>()); }).isEmpty());
    EXPECT_FALSE(with<TableStyle>([](TableStyle& s) {
                     s.getSharedDefaultRowStyle() = shareEmpty<RowStyle>();
                 }).isEmpty());
    EXPECT_FALSE(with<TableStyle>([](TableStyle& s) {
                     s.getSharedDefaultColumnStyle() = shareEmpty<ColumnStyle>();
                 }).isEmpty());
    EXPECT_FALSE(withParent<TableStyle>(SomeUUID).isEmpty());
}

TEST(TableStyleTest, OrdersByMembersInKeyOrderWithTheAbsentFirst)
{
    expectAscending<TableStyle>({
        TableStyle(),
        withParent<TableStyle>(SomeUUID),
        with<TableStyle>([](TableStyle& s) { s.getSharedDefaultColumnStyle() = shareEmpty<ColumnStyle>(); }),
        with<TableStyle>([](TableStyle& s) { s.getSharedDefaultRowStyle() = shareEmpty<RowStyle>(); }),
        with<TableStyle>([](TableStyle& s) { s.setRunProps(makeRunProps(1.0F)); }),
        with<TableStyle>([](TableStyle& s) { s.setParaProps(makeParaProps(1.0F)); }),
        with<TableStyle>([](TableStyle& s) { s.setCellProps(makeCellProps(1.0F)); }),
        with<TableStyle>([](TableStyle& s) { s.setTableProps(makeTableProps(1.0F)); }),
        with<TableStyle>([](TableStyle& s) { s.setTableProps(makeTableProps(2.0F)); }),
    });
}

} // namespace QN::DOM::TableStyleTest
