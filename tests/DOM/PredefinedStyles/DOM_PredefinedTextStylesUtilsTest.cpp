#include "DOM/PredefinedStyles/DOM_PredefinedTextStylesUtils.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "DOM/PredefinedStyles/DOM_PredefinedStylesUtils.h"
#include "DOM/Properties/DOM_NamedTextStyle.h"
#include "DOM/Properties/DOM_Styles.h"
#include "DOM/Properties/StyleSamples.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::PredefinedTextStylesUtilsTest {

using namespace Test;

namespace {

PredefinedStyleName toType(unsigned number)
{
    return static_cast<PredefinedStyleName>(number);
}

struct Row {
    const char* name;
    const char* uuid;
};

/// By number.
constexpr Row Rows[] = {
    {"Normal", "219be34f-66e7-4590-8db5-375443207e49"},
    {"Heading 1", "8b7a892e-b199-47bf-ba6d-139900efb7f5"},
    {"Heading 2", "f60f239d-8df8-4dd8-892b-55f74995936b"},
    {"Heading 3", "273d8959-017a-4c27-b9e1-b81cb2524c77"},
    {"Heading 4", "ee1f0a89-da9e-49a9-99e6-c36bfa31a163"},
    {"Heading 5", "82e87e7a-7e31-42a4-ac28-c3cc6337b790"},
    {"Heading 6", "fda2f9c0-3d74-400e-b4df-77d0912ff13b"},
    {"Heading 7", "0f213e29-9f13-48c2-80ea-12a35d8ad787"},
    {"Heading 8", "95e06b7f-20a2-48c7-80f5-6d6991318aa3"},
    {"Heading 9", "3eb14657-95e4-4c1a-a878-c91e512dc36e"},
    {"Heading 10", "f2ae6ada-0216-44b0-b985-3655fdd434ff"},
    {"Title", "ed5825ee-6c33-4507-aba2-958216b80f01"},
    {"Subtitle", "e4690313-4b3a-40ca-906b-d457e5e4f350"},
    {"Header and Footer", "9d83c8fe-e233-4037-8bdf-871d27fd8346"},
    {"Footnote", "9574b549-5c70-4985-94f7-ac18455eb524"},
    {"Contents 1", "9873b549-c711-46c2-9758-a3e84caa6dd4"},
    {"Contents 2", "06065b5d-94e4-4ab7-9193-da11fead378a"},
    {"Contents 3", "65b96f49-75df-4d6e-b99c-6917a9f9ded0"},
    {"Contents 4", "0cfaf5c8-8dd0-461d-ad22-0043191d272d"},
    {"Contents 5", "ce91792a-016a-4f7d-b222-190b7bcbd8e2"},
    {"Contents 6", "14500f5c-ddb3-446c-b3f3-640322400cae"},
    {"Contents 7", "1644f979-b726-4fe4-8ac0-97841c8c143b"},
    {"Contents 8", "ba2a9c56-bd4b-4473-9c89-c3b5c5bda944"},
    {"Contents 9", "aacbe393-8615-4ad5-bad0-9585b3d95ab9"},
    {"Contents 10", "ea3ad9b9-f450-464b-8ac6-219f144e1be8"},
    {"Hyperlink", "9574b549-5c70-4985-94f7-ac18455eb523"},
};

constexpr unsigned Count = 26;
static_assert(std::size(Rows) == Count);

/// A style with the font of all that name none of their own.
RunProps makeText(boost::optional<float> size, BoolOpt bold, BoolOpt italic, boost::optional<Color> color)
{
    return with<RunProps>([&](RunProps& props) {
        props.setFontProps(sharedWith<FontProps>([&](FontProps& font) {
            font.setFont(std::string("Quillon Serif"));
            font.setSize(size);
            font.setBold(bold);
            font.setItalic(italic);
        }));
        props.setColor(color);
    });
}

void expectRunProps(unsigned number, const RunProps& expected)
{
    const NamedTextStyle style = makePredefinedTextStyle(toType(number));
    ASSERT_NE(style.getRunProps(), nullptr) << number;
    EXPECT_EQ(*style.getRunProps(), expected) << number << toJson(*style.getRunProps());
}

void expectParaProps(unsigned number, const ParaProps& expected)
{
    const NamedTextStyle style = makePredefinedTextStyle(toType(number));
    ASSERT_NE(style.getParaProps(), nullptr) << number;
    EXPECT_EQ(*style.getParaProps(), expected) << number << toJson(*style.getParaProps());
}

ParaProps makeHeading(unsigned long level, bool hasSpacing)
{
    return with<ParaProps>([&](ParaProps& props) {
        if (hasSpacing) {
            props.setBeforeSpacing(SpacingValue(6.0F));
            props.setAfterSpacing(SpacingValue(6.0F));
        }
        props.setOutlineLevel(level);
    });
}

const BoolOpt Unset;

} // namespace

TEST(PredefinedTextStylesUtilsTest, EachTypeHasItsNameAndItsUUID)
{
    for (unsigned number = 0; number < Count; ++number) {
        EXPECT_EQ(makePredefinedTextStyleName(toType(number)), Rows[number].name);
        EXPECT_EQ(makePredefinedTextStyleUUID(toType(number)).toString(), Rows[number].uuid);
    }
}

TEST(PredefinedTextStylesUtilsTest, AStyleHasTheNumberForItsNameAndNothingBesidesItsProperties)
{
    for (unsigned number = 0; number < Count; ++number) {
        const NamedTextStyle style = makePredefinedTextStyle(toType(number));
        EXPECT_EQ(style.getUUID().toString(), Rows[number].uuid);
        EXPECT_SAME(style.getName(), NamedStyleName(toType(number)));
        EXPECT_FALSE(style.getParentUUID());
        EXPECT_EQ(style.getNumRef(), nullptr);
        EXPECT_FALSE(style.getNextParagraphStyleUUID());
        EXPECT_SAME(resolveNamedStyleName(style), std::string(Rows[number].name));
        EXPECT_SAME(resolveNamedStyleType(style), toType(number));
        expectRoundTrip(style);
    }
}

TEST(PredefinedTextStylesUtilsTest, NormalIsTwelvePointsAndNothingElse)
{
    expectRunProps(0, makeText(12.0F, Unset, Unset, boost::none));
    EXPECT_EQ(makePredefinedTextStyle(PredefinedStyleName::Normal).getParaProps(), nullptr);
}

TEST(PredefinedTextStylesUtilsTest, EachHeadingHasItsSizeItsColourAndItsLevel)
{
    expectRunProps(1, makeText(16.0F, true, Unset, boost::none));
    expectRunProps(2, makeText(13.0F, true, Unset, makeColor(0, 160, 255, 255)));
    expectRunProps(3, makeText(boost::none, true, true, makeColor(0, 0, 0, 255)));
    expectRunProps(4, makeText(13.0F, true, Unset, makeColor(89, 89, 89, 255)));
    for (unsigned number = 5; number <= 10; ++number) {
        expectRunProps(number, makeText(11.0F, true, Unset, makeColor(0, 0, 0, 255)));
    }
    for (unsigned number = 1; number <= 10; ++number) {
        expectParaProps(number, makeHeading(number - 1, number != 3));
    }
}

TEST(PredefinedTextStylesUtilsTest, TitleAndSubtitleSayNothingOfTheirParagraph)
{
    expectRunProps(11, makeText(26.0F, true, Unset, boost::none));
    expectRunProps(12, makeText(12.0F, Unset, true, makeColor(97, 97, 97, 255)));
    EXPECT_EQ(makePredefinedTextStyle(PredefinedStyleName::Title).getParaProps(), nullptr);
    EXPECT_EQ(makePredefinedTextStyle(PredefinedStyleName::Subtitle).getParaProps(), nullptr);
}

TEST(PredefinedTextStylesUtilsTest, HeadersAndFootersHaveTheirLinesHalfAgainAsFarApart)
{
    expectRunProps(13, makeText(10.0F, Unset, Unset, boost::none));
    expectParaProps(13, with<ParaProps>([](ParaProps& props) {
                        props.setLineSpacing(LineSpacing(1.5F, static_cast<LineSpacingRule>(0)));
                    }));
}

TEST(PredefinedTextStylesUtilsTest, FootnotesAreSmallAndGrey)
{
    expectRunProps(14, makeText(10.0F, Unset, Unset, makeColor(117, 117, 117, 255)));
    EXPECT_EQ(makePredefinedTextStyle(PredefinedStyleName::Footnote).getParaProps(), nullptr);
}

TEST(PredefinedTextStylesUtilsTest, ContentsAreIndentedByLevelAndTheFirstIsBold)
{
    expectRunProps(15, makeText(boost::none, true, Unset, boost::none));
    for (unsigned number = 15; number <= 24; ++number) {
        expectParaProps(number, with<ParaProps>([&](ParaProps& props) {
                            props.setFirstLineIndent(static_cast<float>(number - 15) * 10.0F);
                            props.setLeftIndent(static_cast<float>(number - 15) * 10.0F);
                        }));
    }
    for (unsigned number = 16; number <= 24; ++number) {
        EXPECT_EQ(makePredefinedTextStyle(toType(number)).getRunProps(), nullptr);
    }
}

TEST(PredefinedTextStylesUtilsTest, AHyperlinkIsUnderlinedAndHasNoFont)
{
    const auto expected = with<RunProps>([](RunProps& props) {
        props.setUnderline(sharedWith<RegularLineProps>(
            [](RegularLineProps& line) { line.setDashStyle(static_cast<DashStyle>(1)); }));
    });
    EXPECT_EQ(createHyperlinkRunProps(), expected);
    expectRunProps(25, expected);
    EXPECT_EQ(makePredefinedTextStyle(PredefinedStyleName::Hyperlink).getParaProps(), nullptr);
}

TEST(PredefinedTextStylesUtilsDeathTest, ATypeAboveTheLastHasNoUUID)
{
    constexpr const char* Expected = "DOM/PredefinedStyles/DOM_PredefinedTextStylesUtils:316: "
                                     "No named text style with such type\\.";
    EXPECT_DEATH(makePredefinedTextStyleUUID(toType(26)), Expected);
    EXPECT_DEATH(makePredefinedTextStyle(toType(26)), Expected);
    EXPECT_DEATH(makePredefinedTextStyle(toType(255)), Expected);
    EXPECT_DEATH(getPredefinedTextStyleUUID(Styles(), toType(26)), Expected);
}

TEST(PredefinedTextStylesUtilsDeathTest, ATypeAboveTheLastHasNoName)
{
    EXPECT_DEATH(makePredefinedTextStyleName(toType(26)),
                 "DOM/PredefinedStyles/DOM_PredefinedTextStylesUtils:360: "
                 "No named text style with such type\\.");
}

TEST(PredefinedTextStylesUtilsTest, AppendingToAnEmptyStoreAddsTwentyOneStylesAndMakesNormalTheDefault)
{
    Styles styles;
    appendPredefinedTextStyles(styles);
    EXPECT_EQ(styles.getTextStyles().size(), 21U);
    EXPECT_EQ(styles.getDefaultParagraphStyleUUID().toString(), Rows[0].uuid);
    for (unsigned number = 0; number < Count; ++number) {
        const NamedTextStyle* const style =
            std::as_const(styles).getTextStyles().find(makePredefinedTextStyleUUID(toType(number)));
        const bool isLowHeading = number >= 6 && number <= 10;
        ASSERT_EQ(style == nullptr, isLowHeading) << number;
        EXPECT_EQ(getPredefinedTextStyleUUID(styles, toType(number)),
                  isLowHeading ? UUID() : makePredefinedTextStyleUUID(toType(number)));
        if (style != nullptr) {
            EXPECT_EQ(*style, makePredefinedTextStyle(toType(number)));
        }
    }
    EXPECT_TRUE(styles.getTableStyles().empty());
    EXPECT_TRUE(styles.getShapeStyles().empty());
    EXPECT_EQ(styles.getHyperlinkStyleUUID().toString(), Rows[25].uuid);
}

TEST(PredefinedTextStylesUtilsTest, AppendingAgainAddsNothingAndKeepsAChosenDefault)
{
    Styles styles;
    appendPredefinedTextStyles(styles);
    styles.setDefaultParagraphStyleUUID(SomeUUID);
    const Styles before(styles);
    appendPredefinedTextStyles(styles);
    EXPECT_EQ(styles, before);
}

TEST(PredefinedTextStylesUtilsTest, AppendingKeepsAStyleOfATypeAsItIs)
{
    Styles styles;
    NamedTextStyle heading(makePredefinedTextStyleUUID(PredefinedStyleName::Heading1));
    heading.setName(PredefinedStyleName::Heading1);
    heading.setParentUUID(SomeUUID);
    styles.getTextStyles().insert(heading);
    appendPredefinedTextStyles(styles);
    EXPECT_EQ(styles.getTextStyles().size(), 21U);
    EXPECT_EQ(*styles.getTextStyles().find(heading.getUUID()), heading);
}

TEST(PredefinedTextStylesUtilsTest, AStyleWithTheTextOfAPredefinedNameIsNoneOfItsType)
{
    Styles styles;
    NamedTextStyle custom(SomeUUID);
    custom.setName(std::string("Normal"));
    styles.getTextStyles().insert(custom);
    EXPECT_FALSE(getPredefinedTextStyleUUID(styles, PredefinedStyleName::Normal));
    appendPredefinedTextStyles(styles);
    EXPECT_EQ(styles.getTextStyles().size(), 22U);
}

TEST(PredefinedTextStylesUtilsDeathTest, AStyleOfATypeWithAnotherUUIDIsAContractFailure)
{
    Styles styles;
    NamedTextStyle heading(SomeUUID);
    heading.setName(PredefinedStyleName::Heading1);
    styles.getTextStyles().insert(heading);
    constexpr const char* Expected = "DOM/PredefinedStyles/DOM_PredefinedStylesUtils:49: "
                                     "style->getUUID\\(\\) == makeUUIDFunctor\\(styleType\\)";
    EXPECT_DEATH(appendPredefinedTextStyles(styles), Expected);
    EXPECT_DEATH(getPredefinedTextStyleUUID(styles, PredefinedStyleName::Heading1), Expected);
    EXPECT_FALSE(getPredefinedTextStyleUUID(styles, PredefinedStyleName::Heading2));
}

TEST(PredefinedTextStylesUtilsDeathTest, AnotherStyleWithTheUUIDOfATypeIsAContractFailure)
{
    Styles styles;
    NamedTextStyle custom(makePredefinedTextStyleUUID(PredefinedStyleName::Normal));
    custom.setName(std::string("Quote"));
    styles.getTextStyles().insert(custom);
    EXPECT_DEATH(appendPredefinedTextStyles(styles),
                 "DOM_UUIDContainer:67: _collection.find\\(uuid\\) == _collection.end\\(\\)");
}

TEST(PredefinedTextStylesUtilsTest, FootnotesAndHyperlinksDifferInTheLastDigitOfTheirUUID)
{
    const std::string footnote = makePredefinedTextStyleUUID(PredefinedStyleName::Footnote).toString();
    const std::string hyperlink = makePredefinedTextStyleUUID(PredefinedStyleName::Hyperlink).toString();
    EXPECT_EQ(footnote.substr(0, 35), hyperlink.substr(0, 35));
    EXPECT_NE(footnote, hyperlink);
}

} // namespace QN::DOM::PredefinedTextStylesUtilsTest
