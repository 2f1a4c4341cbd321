#include "DOM/Properties/DOM_Styles.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>

#include "DOM/Properties/DOM_NamedShapeStyle.h"
#include "DOM/Properties/DOM_NamedTableStyle.h"
#include "DOM/Properties/DOM_NamedTextStyle.h"
#include "DOM/Properties/StyleSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::StylesTest {

using namespace Test;

static_assert(!Ordered<Styles>);

namespace {

NamedTextStyle makeHyperlinkStyle(const UUID& uuid)
{
    NamedTextStyle style(uuid);
    style.setName(PredefinedStyleName::Hyperlink);
    return style;
}

Styles makeFullStyles()
{
    Styles styles;
    styles.getTextStyles().insert(NamedTextStyle(SomeUUID));
    styles.getTextStyles().insert(makeHyperlinkStyle(OtherUUID));
    styles.getTableStyles().insert(NamedTableStyle(SomeUUID));
    styles.getShapeStyles().insert(NamedShapeStyle(SomeUUID));
    styles.setDefaultParagraphStyleUUID(SomeUUID);
    styles.setDefaultTableStyleUUID(SomeUUID);
    styles.setDefaultCellStyleUUID(OtherUUID);
    styles.setDefaultParaProps(makeParaProps(1.0F));
    styles.setDefaultRunProps(makeRunProps(2.0F));
    return styles;
}

} // namespace

TEST(StylesTest, ANewStoreHoldsNothing)
{
    const Styles styles;
    EXPECT_TRUE(styles.getTextStyles().empty());
    EXPECT_TRUE(styles.getTableStyles().empty());
    EXPECT_TRUE(styles.getShapeStyles().empty());
    EXPECT_TRUE(styles.getDefaultParagraphStyle().isEmpty());
    EXPECT_TRUE(styles.getDefaultTableStyle().isEmpty());
    EXPECT_TRUE(styles.getDefaultCellStyle().isEmpty());
    EXPECT_FALSE(styles.getDefaultParagraphStyleUUID());
    EXPECT_FALSE(styles.getDefaultTableStyleUUID());
    EXPECT_FALSE(styles.getDefaultCellStyleUUID());
    EXPECT_EQ(styles.getDefaultParaProps(), nullptr);
    EXPECT_EQ(styles.getDefaultRunProps(), nullptr);
}

TEST(StylesTest, ADefaultWritesEachKeyInOrder)
{
    EXPECT_EQ(toJson(Styles()), R"({"_textStyles":{"_collection":[]},"_tableStyles":{"_collection":[]},)"
                                R"("_shapeStyles":{"_collection":[]},"_defaultParagraphStyle":)" +
                                    toJson(ParagraphStyle()) + R"(,"_defaultTableStyle":)" +
                                    toJson(TableStyle()) + R"(,"_defaultCellStyle":)" + toJson(CellStyle()) +
                                    R"(,"_defaultParaProps":{"ptr_wrapper":{"id":0}},)"
                                    R"("_defaultRunProps":{"ptr_wrapper":{"id":0}}})");
}

TEST(StylesTest, TheUUIDOfADefaultIsTheParentOfTheDefaultStyle)
{
    Styles styles;
    styles.setDefaultParagraphStyleUUID(SomeUUID);
    EXPECT_EQ(styles.getDefaultParagraphStyle().getParentUUID(), SomeUUID);
    EXPECT_EQ(styles.getDefaultParagraphStyleUUID(), SomeUUID);
    styles.setDefaultTableStyleUUID(OtherUUID);
    EXPECT_EQ(styles.getDefaultTableStyle().getParentUUID(), OtherUUID);
    EXPECT_EQ(styles.getDefaultTableStyleUUID(), OtherUUID);
    styles.setDefaultCellStyleUUID(SomeUUID);
    EXPECT_EQ(styles.getDefaultCellStyle().getParentUUID(), SomeUUID);
    EXPECT_EQ(styles.getDefaultCellStyleUUID(), SomeUUID);
}

TEST(StylesTest, ASetMemberIsReadBackAndPersists)
{
    const Styles styles = makeFullStyles();
    EXPECT_EQ(styles.getTextStyles().size(), 2U);
    EXPECT_NE(styles.getTableStyles().find(SomeUUID), nullptr);
    EXPECT_NE(styles.getShapeStyles().find(SomeUUID), nullptr);
    EXPECT_EQ(*styles.getDefaultParaProps(), *makeParaProps(1.0F));
    EXPECT_EQ(*styles.getDefaultRunProps(), *makeRunProps(2.0F));
    expectPersists(styles);
    expectPersists(Styles());
    expectCopiesAndMoves(styles);
}

TEST(StylesTest, ACopyIsIndependentOfItsSource)
{
    const Styles styles = makeFullStyles();
    Styles copy(styles);
    copy.getTextStyles().find(SomeUUID)->setName(std::string("changed"));
    copy.getTableStyles().clear();
    EXPECT_EQ(styles, makeFullStyles());
    EXPECT_NE(copy, styles);
}

TEST(StylesTest, EachMemberTakesPartInEquality)
{
    const auto changed = [](auto change) {
        Styles styles = makeFullStyles();
        change(styles);
        return styles;
    };
    EXPECT_EQ(makeFullStyles(), makeFullStyles());
    EXPECT_NE(makeFullStyles(), changed([](Styles& s) { s.getTextStyles().erase(SomeUUID); }));
    EXPECT_NE(makeFullStyles(), changed([](Styles& s) { s.getTableStyles().clear(); }));
    EXPECT_NE(makeFullStyles(), changed([](Styles& s) { s.getShapeStyles().clear(); }));
    EXPECT_NE(makeFullStyles(), changed([](Styles& s) { s.setDefaultParagraphStyleUUID(OtherUUID); }));
    EXPECT_NE(makeFullStyles(), changed([](Styles& s) { s.setDefaultTableStyleUUID(OtherUUID); }));
    EXPECT_NE(makeFullStyles(), changed([](Styles& s) { s.setDefaultCellStyleUUID(SomeUUID); }));
    EXPECT_NE(makeFullStyles(), changed([](Styles& s) { s.setDefaultParaProps(nullptr); }));
    EXPECT_NE(makeFullStyles(), changed([](Styles& s) { s.setDefaultRunProps(nullptr); }));
}

TEST(StylesTest, ParentsMayMakeACircleOrNotBeThere)
{
    Styles styles;
    NamedTextStyle first(SomeUUID);
    first.setParentUUID(OtherUUID);
    NamedTextStyle second(OtherUUID);
    second.setParentUUID(SomeUUID);
    styles.getTextStyles().insert(first);
    styles.getTextStyles().insert(second);
    NamedTableStyle table(SomeUUID);
    table.setParentUUID(SomeUUID);
    styles.getTableStyles().insert(table);
    NamedShapeStyle shape(SomeUUID);
    shape.setParentUUID(OtherUUID);
    styles.getShapeStyles().insert(std::move(shape));
    styles.setDefaultTableStyleUUID(OtherUUID);
    expectPersists(styles);
    expectCopiesAndMoves(styles);
    EXPECT_FALSE(styles.getHyperlinkStyleUUID());
}

TEST(StylesTest, AFileWithTwoStylesOfOneUUIDIsRefused)
{
    Styles styles;
    styles.getTextStyles().insert(NamedTextStyle(SomeUUID));
    std::string json = toJson(styles);
    const std::string start = R"({"_textStyles":{"_collection":[)";
    ASSERT_EQ(json.substr(0, start.size()), start);
    const std::string entry = json.substr(start.size(), json.find("]}") - start.size());
    json.insert(start.size(), entry + ",");
    EXPECT_EQ(loadError<Styles>(json),
              "The UUID 00000000-0000-0000-0000-000000000001 occurs twice in a collection");
}

TEST(StylesTest, LoadingReplacesWhatWasThere)
{
    Styles styles = makeFullStyles();
    loadJson(toJson(Styles()), styles);
    EXPECT_EQ(styles, Styles());
}

TEST(StylesTest, SwappingAStoreWithItselfChangesNothing)
{
    Styles styles = makeFullStyles();
    Styles& itself = styles;
    std::swap(styles, itself);
    EXPECT_EQ(styles, makeFullStyles());
}

TEST(StylesTest, WithoutAHyperlinkStyleItsUUIDIsNil)
{
    Styles styles;
    EXPECT_FALSE(styles.getHyperlinkStyleUUID());
    NamedTextStyle style(SomeUUID);
    style.setName(std::string("Hyperlink"));
    styles.getTextStyles().insert(std::move(style));
    EXPECT_FALSE(styles.getHyperlinkStyleUUID());
}

TEST(StylesTest, OfTwoHyperlinkStylesTheFirstInTheOrderOfTheContainerCounts)
{
    Styles styles;
    styles.getTextStyles().insert(makeHyperlinkStyle(OtherUUID));
    EXPECT_EQ(styles.getHyperlinkStyleUUID(), OtherUUID);
    styles.getTextStyles().insert(makeHyperlinkStyle(SomeUUID));
    EXPECT_EQ(styles.getHyperlinkStyleUUID(), SomeUUID);
}

} // namespace QN::DOM::StylesTest
