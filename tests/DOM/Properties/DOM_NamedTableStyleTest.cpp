#include "DOM/Properties/DOM_NamedTableStyle.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::NamedTableStyleTest {

using namespace Test;

static_assert(std::is_base_of_v<UUIDable, NamedTableStyle>);
static_assert(!Ordered<NamedTableStyle>);

TEST(NamedTableStyleTest, ANewStyleHasAnIdentityAndSaysNothing)
{
    const NamedTableStyle style;
    EXPECT_TRUE(style.getUUID());
    EXPECT_EQ(style.getName().which(), 0);
    EXPECT_EQ(style.getParaProps(), nullptr);
    EXPECT_EQ(style.getRunProps(), nullptr);
    EXPECT_EQ(style.getRowProps(), nullptr);
    EXPECT_EQ(style.getColumnProps(), nullptr);
    EXPECT_EQ(style.getCellProps(), nullptr);
    EXPECT_EQ(style.getTableProps(), nullptr);
    EXPECT_EQ(style.getCellFormat(), nullptr);
    EXPECT_FALSE(style.getParentUUID());
}

TEST(NamedTableStyleTest, TheBaseIsWrittenFirstAndThenEachKeyInOrder)
{
    const std::string null = R"({"ptr_wrapper":{"id":0}})";
    EXPECT_EQ(toJson(NamedTableStyle(SomeUUID)),
              R"({"value0":{"_uuid":{"_id":")" + SomeUUID.toString() +
                  R"("}},"_name":{"which":0,"data":{}},"_paraProps":)" + null + R"(,"_runProps":)" + null +
                  R"(,"_rowProps":)" + null + R"(,"_colProps":)" + null + R"(,"_cellProps":)" + null +
                  R"(,"_tableProps":)" + null + R"(,"_cellFormat":)" + null +
                  R"(,"_parentUUID":{"_id":"00000000-0000-0000-0000-000000000000"}})");
}

TEST(NamedTableStyleTest, ASetMemberIsReadBackTakesPartInEqualityAndPersists)
{
    NamedTableStyle style(SomeUUID);
    const auto expectSetting = [&](auto change) {
        const NamedTableStyle before(style);
        change(style);
        EXPECT_NE(style, before);
    };
    expectSetting([](NamedTableStyle& s) { s.setName(std::string("Grid")); });
    expectSetting([](NamedTableStyle& s) { s.setParaProps(makeParaProps(1.0F)); });
    expectSetting([](NamedTableStyle& s) { s.setRunProps(makeRunProps(2.0F)); });
    expectSetting([](NamedTableStyle& s) { s.setRowProps(makeRowProps(true)); });
    expectSetting([](NamedTableStyle& s) { s.setColumnProps(makeColumnProps(3.0F)); });
    expectSetting([](NamedTableStyle& s) { s.setCellProps(makeCellProps(4.0F)); });
    expectSetting([](NamedTableStyle& s) { s.setTableProps(makeTableProps(5.0F)); });
    expectSetting([](NamedTableStyle& s) { s.setCellFormat(makeCellFormat(1)); });
    expectSetting([](NamedTableStyle& s) { s.setParentUUID(OtherUUID); });

    EXPECT_EQ(boost::get<std::string>(style.getName()), "Grid");
    EXPECT_EQ(*style.getParaProps(), *makeParaProps(1.0F));
    EXPECT_EQ(*style.getRunProps(), *makeRunProps(2.0F));
    EXPECT_EQ(*style.getRowProps(), *makeRowProps(true));
    EXPECT_EQ(*style.getColumnProps(), *makeColumnProps(3.0F));
    EXPECT_EQ(*style.getCellProps(), *makeCellProps(4.0F));
    EXPECT_EQ(*style.getTableProps(), *makeTableProps(5.0F));
    EXPECT_EQ(*style.getCellFormat(), *makeCellFormat(1));
    EXPECT_EQ(style.getParentUUID(), OtherUUID);
    expectPersists(style);
    expectPersists(NamedTableStyle());
    expectCopiesAndMoves(style);
    expectSetting([](NamedTableStyle& s) { s.setUUID(OtherUUID); });
}

} // namespace QN::DOM::NamedTableStyleTest
