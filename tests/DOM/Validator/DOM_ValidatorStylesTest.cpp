#include <gtest/gtest.h>

#include "DOM/Validator/DOM_Validator.h"
#include "DOM/Validator/ValidatorSamples.h"

/// The rules of named styles, and what is valid in them and yet dangerous.

namespace QN::DOM::ValidatorStylesTest {
namespace {

using namespace Test;

const std::string Lowest = "00000000-0000-0000-0000-000000000001";
const std::string Highest = "ffffffff-ffff-ffff-ffff-ffffffffffff";

template <class Style>
Style makeStyle(const std::string& uuid, NamedStyleName name)
{
    Style style{UUID(uuid)};
    style.setName(std::move(name));
    return style;
}

/// All three containers have a style of the same type.
Document makeStyledDocument()
{
    Document document;
    Styles& styles = document.getStyles();
    appendPredefinedEntities(document);
    styles.getTextStyles().insert(NamedTextStyle(makeUUID('1')));
    styles.getTextStyles().insert(makeStyle<NamedTextStyle>(getUUIDText('2'), std::string("Heading 1")));
    styles.getTableStyles().insert(
        makeStyle<NamedTableStyle>(getUUIDText('3'), PredefinedStyleName::Heading1));
    styles.getTableStyles().insert(
        makeStyle<NamedTableStyle>(getUUIDText('4'), PredefinedStyleName::Heading2));
    styles.getShapeStyles().insert(
        makeStyle<NamedShapeStyle>(getUUIDText('5'), PredefinedStyleName::Heading1));
    styles.getShapeStyles().insert(NamedShapeStyle(makeUUID('6')));
    return document;
}

TEST(ValidatorStylesTest, NoTwoStylesOfAKindHaveOneType)
{
    const std::string message = "Duplicate named style type.";
    expectRule(makeValidatorRule(54, "stylesTypes.find(*type) == stylesTypes.end()"), makeStyledDocument,
               {{[](Document& document) {
                     document.getStyles().getTextStyles().insert(
                         makeStyle<NamedTextStyle>(Highest, PredefinedStyleName::Heading1));
                     return "textStyles[" + Highest + "]";
                 },
                 message},
                {[](Document& document) {
                     document.getStyles().getTextStyles().insert(
                         makeStyle<NamedTextStyle>(Highest, PredefinedStyleName::Hyperlink));
                     return "textStyles[" + Highest + "]";
                 },
                 message},
                {[](Document& document) {
                     document.getStyles().getTableStyles().insert(
                         makeStyle<NamedTableStyle>(Highest, PredefinedStyleName::Heading2));
                     return "tableStyles[" + Highest + "]";
                 },
                 message},
                {[](Document& document) {
                     document.getStyles().getShapeStyles().insert(
                         makeStyle<NamedShapeStyle>(Lowest, PredefinedStyleName::Heading1));
                     return "shapeStyles[" + getUUIDText('5') + "]";
                 },
                 message}});
}

TEST(ValidatorStylesTest, AStyleIsFoundByItsUUID)
{
    const auto rename = [](auto getStyles, const std::string& step, char digit) {
        return Fault{[=](Document& document) {
            getStyles(document.getStyles()).find(makeUUID(digit))->setUUID(UUID(Highest));
            return step + "[" + getUUIDText(digit) + "]";
        }};
    };
    const auto getTextStyles = [](Styles & styles) -> auto&
    {
        return styles.getTextStyles();
    };
    const auto getTableStyles = [](Styles & styles) -> auto&
    {
        return styles.getTableStyles();
    };
    const auto getShapeStyles = [](Styles & styles) -> auto&
    {
        return styles.getShapeStyles();
    };
    expectRule(makeValidatorRule(57, "namedStyles.find(namedStyle.getUUID())"), makeStyledDocument,
               {rename(getTextStyles, "textStyles", '1'), rename(getTextStyles, "textStyles", '2'),
                rename(getTableStyles, "tableStyles", '3'), rename(getTableStyles, "tableStyles", '4'),
                rename(getShapeStyles, "shapeStyles", '5'), rename(getShapeStyles, "shapeStyles", '6')});
}

TEST(ValidatorStylesTest, AStyleUnderTheKeyOfAnotherPassesWhereTheOtherIsFound)
{
    Document document = makeStyledDocument();
    document.getStyles().getTextStyles().find(makeUUID('1'))->setUUID(makeUUID('2'));
    expectValid(document);
}

// Hazards

/// `validate` returns, and this is all that is collected.
void expectHazard(const Document& document, const std::string& text)
{
    Validator().validate(document);
    const auto findings = Validator::collectFindings(document);
    ASSERT_EQ(findings.size(), 1U) << getTexts(findings);
    EXPECT_EQ(findings[0].kind, FindingKind::Hazard);
    EXPECT_EQ(findings[0].toString(), text + " (hazard)");
}

TEST(ValidatorStylesTest, AnUnknownTypeIsAHazardOfTheStylesName)
{
    const std::string text = "DOM/PredefinedStyles/DOM_PredefinedTextStylesUtils:360: No named text style "
                             "with such type. at ";
    const PredefinedStyleName unknown{26};

    Document document = makeStyledDocument();
    document.getStyles().getTextStyles().insert(makeStyle<NamedTextStyle>(Highest, unknown));
    expectHazard(document, text + "textStyles[" + Highest + "]");
    EXPECT_DEATH(findNamedStyle(document.getStyles().getTextStyles(), "unknown"),
                 "DOM_PredefinedTextStylesUtils:360: No named text style with such type.");

    document = makeStyledDocument();
    document.getStyles().getTableStyles().insert(makeStyle<NamedTableStyle>(Highest, unknown));
    expectHazard(document, text + "tableStyles[" + Highest + "]");

    document = makeStyledDocument();
    document.getStyles().getShapeStyles().insert(
        makeStyle<NamedShapeStyle>(Highest, PredefinedStyleName{255}));
    expectHazard(document, text + "shapeStyles[" + Highest + "]");
}

TEST(ValidatorStylesTest, AKnownTypeUnderAnotherUUIDIsAHazardOfFindingIt)
{
    const std::string text = "DOM/PredefinedStyles/DOM_PredefinedStylesUtils:49: style->getUUID() == "
                             "makeUUIDFunctor(styleType) at ";
    Document document = makeStyledDocument();
    document.getStyles().getTextStyles().insert(
        makeStyle<NamedTextStyle>(Lowest.substr(0, 35) + "9", PredefinedStyleName::Heading6));
    expectHazard(document, text + "textStyles[" + getUUIDText('9') + "]");
    EXPECT_DEATH(findNamedStyle(document.getStyles().getTextStyles(), PredefinedStyleName::Heading6),
                 "DOM_PredefinedStylesUtils:49: style->getUUID\\(\\) == makeUUIDFunctor\\(styleType\\)");
}

TEST(ValidatorStylesTest, AnotherStyleUnderTheUUIDOfAMissingTypeIsAHazardOfAddingThat)
{
    const std::string text =
        "DOM_UUIDContainer:67: _collection.find(uuid) == _collection.end() at textStyles[";
    const char* const stop = "DOM_UUIDContainer:67: _collection.find\\(uuid\\) == _collection.end\\(\\)";
    const UUID normal = makePredefinedTextStyleUUID(PredefinedStyleName::Normal);
    const UUID heading = makePredefinedTextStyleUUID(PredefinedStyleName::Heading10);
    const UUID last = makePredefinedTextStyleUUID(PredefinedStyleName::Hyperlink);

    Document document;
    Styles& styles = document.getStyles();
    styles.getTextStyles().insert(makeStyle<NamedTextStyle>(normal.toString(), std::string("Normal")));
    expectHazard(document, text + normal.toString() + "]");
    EXPECT_DEATH(appendPredefinedTextStyles(styles), stop);

    document = Document();
    styles.getTextStyles().insert(NamedTextStyle(last));
    expectHazard(document, text + last.toString() + "]");
    EXPECT_DEATH(appendPredefinedTextStyles(styles), stop);

    // One that is added singly.
    document = makeStyledDocument();
    styles.getTextStyles().insert(NamedTextStyle(heading));
    expectHazard(document, text + heading.toString() + "]");
    EXPECT_DEATH(styles.getTextStyles().insert(makePredefinedTextStyle(PredefinedStyleName::Heading10)),
                 stop);
    styles.getTextStyles().insert(makeStyle<NamedTextStyle>(Highest, PredefinedStyleName::Heading10));
    EXPECT_EQ(Validator::collectFindings(document).front().line, 49);
    EXPECT_EQ(Validator::collectFindings(document).size(), 1U);
}

TEST(ValidatorStylesTest, HazardsStandBehindAllBrokenRules)
{
    Document document = makeStyledDocument();
    auto& textStyles = document.getStyles().getTextStyles();
    textStyles.insert(makeStyle<NamedTextStyle>(getUUIDText('0'), PredefinedStyleName::Heading1));
    textStyles.insert(makeStyle<NamedTextStyle>(Highest, PredefinedStyleName{99}));
    textStyles.insert(NamedTextStyle(makePredefinedTextStyleUUID(PredefinedStyleName::Heading10)));
    InComment.put(document, nullptr);
    document.getStyles().getTableStyles().insert(
        makeStyle<NamedTableStyle>(Highest, PredefinedStyleName{99}));
    document.getStyles().getShapeStyles().find(makeUUID('6'))->setUUID(UUID(Highest));
    std::string lines;
    for (const Finding& finding : Validator::collectFindings(document)) {
        lines +=
            (finding.kind == FindingKind::Hazard ? "hazard " : "rule ") + std::to_string(finding.line) + "\n";
    }
    EXPECT_EQ(lines, "rule 254\nrule 54\nrule 57\nhazard 49\nhazard 360\nhazard 360\nhazard 67\n");
}

} // namespace
} // namespace QN::DOM::ValidatorStylesTest
