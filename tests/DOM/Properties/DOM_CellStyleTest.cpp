#include "DOM/Properties/DOM_CellStyle.h"

#include <gtest/gtest.h>

#include <memory>

#include "DOM/Properties/StyleSamples.h"
#include "DOM/Shapes/DOM_Insets.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::CellStyleTest {

using namespace Test;

namespace {

CellStyle makeFullCellStyle()
{
    return with<CellStyle>([](CellStyle& style) {
        style.setCellProps(makeCellProps(5.0F));
        style.setCellFormat(makeCellFormat(1));
        style.setParaProps(makeParaProps(2.0F));
        style.setRunProps(makeRunProps(3.0F));
        style.setParentUUID(SomeUUID);
        style.setNoteUUID(OtherUUID);
    });
}

} // namespace

TEST(CellStyleTest, SaysNothingByDefault)
{
    const CellStyle style;
    EXPECT_EQ(style.getCellProps(), nullptr);
    EXPECT_EQ(style.getCellFormat(), nullptr);
    EXPECT_EQ(style.getParaProps(), nullptr);
    EXPECT_EQ(style.getRunProps(), nullptr);
    EXPECT_FALSE(style.getParentUUID());
    EXPECT_FALSE(style.getNoteUUID());
    EXPECT_TRUE(style.isEmpty());
}

TEST(CellStyleTest, ADefaultWritesEachKeyInOrder)
{
    EXPECT_EQ(toJson(CellStyle()),
              R"({"_cellProps":{"ptr_wrapper":{"id":0}},"_cellFormat":{"ptr_wrapper":{"id":0}},)"
              R"("_paraProps":{"ptr_wrapper":{"id":0}},"_runProps":{"ptr_wrapper":{"id":0}},)"
              R"("_parentUUID":{"_id":"00000000-0000-0000-0000-000000000000"},)"
              R"("_noteUUID":{"_id":"00000000-0000-0000-0000-000000000000"}})");
}

TEST(CellStyleTest, ASetMemberIsReadBackAndPersists)
{
    const CellStyle style = makeFullCellStyle();
    EXPECT_EQ(*style.getCellProps(), *makeCellProps(5.0F));
    EXPECT_EQ(*style.getCellFormat(), *makeCellFormat(1));
    EXPECT_EQ(*style.getParaProps(), *makeParaProps(2.0F));
    EXPECT_EQ(*style.getRunProps(), *makeRunProps(3.0F));
    EXPECT_EQ(style.getParentUUID(), SomeUUID);
    EXPECT_EQ(style.getNoteUUID(), OtherUUID);
    expectPersists(style);
    expectPersists(CellStyle());
    expectCopiesAndMoves(style);
}

TEST(CellStyleTest, AnySingleMemberMakesItNonEmpty)
{
    EXPECT_FALSE(
        with<CellStyle>([](CellStyle& s) { s.setCellProps(std::make_shared<CellProps>()); }).isEmpty());
    EXPECT_FALSE(
        with<CellStyle>([](CellStyle& s) { s.setCellFormat(std::make_shared<CellFormat>()); }).isEmpty());
    EXPECT_FALSE(
        with<CellStyle>([](CellStyle& s) { s.setParaProps(std::make_shared<ParaProps>()); }).isEmpty());
    EXPECT_FALSE(
        with<CellStyle>([](CellStyle& s) { s.setRunProps(std::make_shared<RunProps>()); }).isEmpty());
    EXPECT_FALSE(withParent<CellStyle>(SomeUUID).isEmpty());
    EXPECT_FALSE(with<CellStyle>([](CellStyle& s) { s.setNoteUUID(SomeUUID); }).isEmpty());
}

TEST(CellStyleTest, OrdersByMembersInKeyOrderWithTheAbsentFirst)
{
    expectAscending<CellStyle>({
        CellStyle(),
        with<CellStyle>([](CellStyle& s) { s.setNoteUUID(SomeUUID); }),
        withParent<CellStyle>(SomeUUID),
        with<CellStyle>([](CellStyle& s) { s.setRunProps(makeRunProps(1.0F)); }),
        with<CellStyle>([](CellStyle& s) { s.setParaProps(makeParaProps(1.0F)); }),
        with<CellStyle>([](CellStyle& s) { s.setCellFormat(makeCellFormat(1)); }),
        with<CellStyle>([](CellStyle& s) { s.setCellFormat(makeCellFormat(2)); }),
        with<CellStyle>([](CellStyle& s) { s.setCellProps(makeCellProps(1.0F)); }),
    });
}

TEST(CellStyleTest, OverrideReplacesTheFormatWholeAndBothUUIDsAlways)
{
    CellStyle target = makeFullCellStyle();
    override(target, with<CellStyle>([](CellStyle& s) {
                 s.setCellFormat(makeCellFormat(2));
                 s.setParentUUID(OtherUUID);
             }));
    CellStyle expected = makeFullCellStyle();
    expected.setCellFormat(makeCellFormat(2));
    expected.setParentUUID(OtherUUID);
    expected.setNoteUUID(UUID());
    EXPECT_EQ(target, expected);
}

TEST(CellStyleTest, OverrideMergesPropertiesByMember)
{
    CellStyle target = with<CellStyle>([](CellStyle& s) { s.setParaProps(makeParaProps(1.0F)); });
    override(target, with<CellStyle>([](CellStyle& s) {
                 s.setParaProps(sharedWith<ParaProps>([](ParaProps& p) { p.setRightIndent(2.0F); }));
             }));
    EXPECT_EQ(*target.getParaProps(), with<ParaProps>([](ParaProps& p) {
        p.setLeftIndent(1.0F);
        p.setRightIndent(2.0F);
    }));
}

TEST(CellStyleTest, ExcludeLeavesTheUUIDs)
{
    CellStyle target = makeFullCellStyle();
    exclude(target, makeFullCellStyle());
    EXPECT_EQ(target, with<CellStyle>([](CellStyle& s) {
                  s.setParentUUID(SomeUUID);
                  s.setNoteUUID(OtherUUID);
              }));
}

TEST(CellStyleTest, ExcludeKeepsAFormatThatDiffersInAPrivateCopy)
{
    const auto format = makeCellFormat(1);
    CellStyle target = with<CellStyle>([&](CellStyle& s) { s.setCellFormat(format); });
    exclude(target, with<CellStyle>([](CellStyle& s) { s.setCellFormat(makeCellFormat(2)); }));
    EXPECT_EQ(*target.getCellFormat(), *format);
    EXPECT_NE(target.getCellFormat(), format);
}

TEST(CellStyleTest, RebaseCopiesTheFormatWhereTheReferencesAgree)
{
    const auto format = [](std::size_t count) {
        return with<CellStyle>([&](CellStyle& s) { s.setCellFormat(makeCellFormat(count)); });
    };
    const CellStyle replacement = format(9);
    CellStyle target = format(1);
    rebaseProperty(target, replacement, format(2), format(2));
    EXPECT_EQ(*target.getCellFormat(), *makeCellFormat(9));
    EXPECT_NE(target.getCellFormat(), replacement.getCellFormat());

    rebaseProperty(target, format(5), format(2), format(3));
    EXPECT_EQ(*target.getCellFormat(), *makeCellFormat(9));

    rebaseProperty(target, CellStyle(), CellStyle(), CellStyle());
    EXPECT_EQ(target.getCellFormat(), nullptr);
}

TEST(CellStyleTest, RebaseLeavesEmptyPropertiesAndReplacesTheUUIDsWhoseReferencesAgree)
{
    CellStyle target = with<CellStyle>([](CellStyle& s) {
        s.setParentUUID(SomeUUID);
        s.setNoteUUID(SomeUUID);
    });
    rebaseProperty(target, withParent<CellStyle>(OtherUUID), CellStyle(),
                   with<CellStyle>([](CellStyle& s) { s.setNoteUUID(OtherUUID); }));
    EXPECT_EQ(target, with<CellStyle>([](CellStyle& s) {
                  s.setCellProps(sharedWith<CellProps>([](CellProps& p) {
                      p.setBorders(std::make_shared<BordersProps>());
                      p.setMargins(std::make_shared<Insets>());
                  }));
                  s.setParaProps(sharedWith<ParaProps>(
                      [](ParaProps& p) { p.setBorders(std::make_shared<BordersProps>()); }));
                  s.setRunProps(sharedWith<RunProps>([](RunProps& p) {
                      p.setFontProps(std::make_shared<FontProps>());
                      p.setUnderline(std::make_shared<RegularLineProps>());
                  }));
                  s.setParentUUID(OtherUUID);
                  s.setNoteUUID(SomeUUID);
              }));
}

TEST(CellStyleTest, AStyleIsCombinedWithItself)
{
    CellStyle style = makeFullCellStyle();
    const CellStyle& itself = style;
    override(style, itself);
    EXPECT_EQ(style, makeFullCellStyle());
    exclude(style, itself);
    EXPECT_EQ(style, with<CellStyle>([](CellStyle& s) {
                  s.setParentUUID(SomeUUID);
                  s.setNoteUUID(OtherUUID);
              }));
}

} // namespace QN::DOM::CellStyleTest
