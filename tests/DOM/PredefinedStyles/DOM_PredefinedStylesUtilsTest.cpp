#include "DOM/PredefinedStyles/DOM_PredefinedStylesUtils.h"

#include <gtest/gtest.h>

#include <string>

#include "DOM/Properties/DOM_NamedShapeStyle.h"
#include "DOM/Properties/DOM_NamedTableStyle.h"
#include "DOM/Properties/DOM_NamedTextStyle.h"
#include "DOM/Properties/StyleSamples.h"

namespace QN::DOM::PredefinedStylesUtilsTest {

using namespace Test;

namespace {

template <class Style>
Style makeNamed(NamedStyleName name, const UUID& uuid = SomeUUID)
{
    Style style(uuid);
    style.setName(std::move(name));
    return style;
}

const UUID HyperlinkUUID("9574b549-5c70-4985-94f7-ac18455eb523");

} // namespace

template <class T>
class NamedStyleNamesTest : public ::testing::Test {
};

using NamedStyles = ::testing::Types<NamedTextStyle, NamedTableStyle, NamedShapeStyle>;
TYPED_TEST_SUITE(NamedStyleNamesTest, NamedStyles);

TYPED_TEST(NamedStyleNamesTest, AStyleWithoutANameResolvesToNeitherNameNorType)
{
    EXPECT_FALSE(resolveNamedStyleName(TypeParam()));
    EXPECT_FALSE(resolveNamedStyleType(TypeParam()));
}

TYPED_TEST(NamedStyleNamesTest, APredefinedNameResolvesToItsTextAndItsType)
{
    const auto style = makeNamed<TypeParam>(PredefinedStyleName::HeaderAndFooter);
    EXPECT_SAME(resolveNamedStyleName(style), std::string("Header and Footer"));
    EXPECT_SAME(resolveNamedStyleType(style), PredefinedStyleName::HeaderAndFooter);
}

TYPED_TEST(NamedStyleNamesTest, ACustomNameResolvesToItselfAndNeverToAType)
{
    const auto style = makeNamed<TypeParam>(std::string("Heading 1"));
    EXPECT_SAME(resolveNamedStyleName(style), std::string("Heading 1"));
    EXPECT_FALSE(resolveNamedStyleType(style));
    EXPECT_SAME(resolveNamedStyleName(makeNamed<TypeParam>(std::string())), std::string());
}

TYPED_TEST(NamedStyleNamesTest, AnUnknownTypeIsPassedOnAndHasNoText)
{
    const auto style = makeNamed<TypeParam>(static_cast<PredefinedStyleName>(200));
    EXPECT_SAME(resolveNamedStyleType(style), static_cast<PredefinedStyleName>(200));
    EXPECT_DEATH(resolveNamedStyleName(style), "DOM/PredefinedStyles/DOM_PredefinedTextStylesUtils:360: "
                                               "No named text style with such type\\.");
}

TEST(FindNamedStyleTest, FindsAStyleByItsType)
{
    UUIDContainer<NamedTextStyle> styles;
    EXPECT_EQ(findNamedStyle(styles, PredefinedStyleName::Hyperlink), nullptr);
    styles.insert(makeNamed<NamedTextStyle>(std::string("Hyperlink")));
    EXPECT_EQ(findNamedStyle(styles, PredefinedStyleName::Hyperlink), nullptr);
    styles.insert(makeNamed<NamedTextStyle>(PredefinedStyleName::Hyperlink, HyperlinkUUID));
    EXPECT_EQ(findNamedStyle(styles, PredefinedStyleName::Hyperlink), styles.find(HyperlinkUUID));
    EXPECT_EQ(findNamedStyle(styles, PredefinedStyleName::Title), nullptr);
}

TEST(FindNamedStyleTest, FindsTheFirstStyleOfANameInTheOrderOfTheContainer)
{
    UUIDContainer<NamedTextStyle> styles;
    EXPECT_EQ(findNamedStyle(styles, std::string("Title")), nullptr);
    styles.insert(makeNamed<NamedTextStyle>(PredefinedStyleName::Title, OtherUUID));
    EXPECT_EQ(findNamedStyle(styles, std::string("Title")), styles.find(OtherUUID));
    styles.insert(makeNamed<NamedTextStyle>(std::string("Title"), SomeUUID));
    EXPECT_EQ(findNamedStyle(styles, std::string("Title")), styles.find(SomeUUID));
    EXPECT_EQ(findNamedStyle(styles, std::string("title")), nullptr);
}

TEST(FindNamedStyleTest, AStyleWithoutANameIsNotFoundByAnEmptyOne)
{
    UUIDContainer<NamedTextStyle> styles;
    styles.insert(NamedTextStyle(SomeUUID));
    EXPECT_EQ(findNamedStyle(styles, std::string()), nullptr);
}

TEST(FindNamedStyleDeathTest, AStyleOfATypeMustHaveTheUUIDOfTheType)
{
    UUIDContainer<NamedTextStyle> styles;
    styles.insert(makeNamed<NamedTextStyle>(PredefinedStyleName::Hyperlink, SomeUUID));
    EXPECT_DEATH(findNamedStyle(styles, PredefinedStyleName::Hyperlink),
                 "DOM/PredefinedStyles/DOM_PredefinedStylesUtils:49: "
                 "style->getUUID\\(\\) == makeUUIDFunctor\\(styleType\\)");
}

TEST(FindNamedStyleDeathTest, TheFirstStyleOfATypeIsTheOneThatMustHaveItsUUID)
{
    const UUID before("00000000-0000-0000-0000-000000000001");
    const UUID behind("ffffffff-ffff-ffff-ffff-ffffffffffff");
    UUIDContainer<NamedTextStyle> styles;
    styles.insert(makeNamed<NamedTextStyle>(PredefinedStyleName::Hyperlink, HyperlinkUUID));
    styles.insert(makeNamed<NamedTextStyle>(PredefinedStyleName::Hyperlink, behind));
    EXPECT_EQ(findNamedStyle(styles, PredefinedStyleName::Hyperlink), styles.find(HyperlinkUUID));
    styles.insert(makeNamed<NamedTextStyle>(PredefinedStyleName::Hyperlink, before));
    EXPECT_DEATH(findNamedStyle(styles, PredefinedStyleName::Hyperlink),
                 "DOM/PredefinedStyles/DOM_PredefinedStylesUtils:49: "
                 "style->getUUID\\(\\) == makeUUIDFunctor\\(styleType\\)");
}

TEST(FindNamedStyleDeathTest, AStyleOfAnUnknownTypeOnTheWayToANameIsAContractFailure)
{
    UUIDContainer<NamedTextStyle> styles;
    styles.insert(makeNamed<NamedTextStyle>(static_cast<PredefinedStyleName>(26), OtherUUID));
    EXPECT_DEATH(findNamedStyle(styles, std::string("Quote")),
                 "DOM/PredefinedStyles/DOM_PredefinedTextStylesUtils:360: "
                 "No named text style with such type\\.");
    styles.insert(makeNamed<NamedTextStyle>(std::string("Quote"), SomeUUID));
    EXPECT_EQ(findNamedStyle(styles, std::string("Quote")), styles.find(SomeUUID));
    EXPECT_EQ(findNamedStyle(styles, PredefinedStyleName::Normal), nullptr);
}

TEST(FindNamedStyleDeathTest, ThereIsNoTypeAboveTheLast)
{
    EXPECT_DEATH(findNamedStyle(UUIDContainer<NamedTextStyle>(), static_cast<PredefinedStyleName>(26)),
                 "DOM/PredefinedStyles/DOM_PredefinedTextStylesUtils:316: "
                 "No named text style with such type\\.");
}

} // namespace QN::DOM::PredefinedStylesUtilsTest
