#include "DOM/DOM_Document.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#include "DOM/DocumentSamples.h"
#include "DOM/FormulaSyntaxTree/DOM_FunctionCall.h"
#include "DOM/Properties/DOM_BlipFill.h"
#include "DOM/Properties/DOM_NamedTextStyle.h"
#include "DOM/TextSamples.h"
#include "DOM/Validator/DOM_Validator.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::DocumentTest {
namespace {

using namespace QN::Test;

static_assert(!std::is_polymorphic_v<Document>);

constexpr const char* EmptyCollectionJson = R"({"_collection":[]})";

std::unique_ptr<Theme> makeThemeWithImage(std::shared_ptr<const std::string> bytes)
{
    auto fill = std::make_unique<BlipFill>();
    fill->setContent(std::move(bytes));
    FormatScheme scheme;
    scheme.getFills().push_back(std::move(fill));
    auto theme = std::make_unique<Theme>();
    theme->setFormatScheme(std::move(scheme));
    return theme;
}

TEST(DOM_Document, HasItsDefaultsWhenItIsNew)
{
    const Document document;
    EXPECT_TRUE(document.getBlocks().empty());
    EXPECT_EQ(document.getProps(), DocumentProperties());
    EXPECT_EQ(document.getTextWithTombstones(), TextWithTombstones());
    EXPECT_EQ(document.getScripts(), Scripts());
    EXPECT_EQ(document.getStyles(), Styles());
    EXPECT_TRUE(document.getNumLists().empty());
    EXPECT_EQ(document.getTabStopDistance(), 36.0F);
    EXPECT_TRUE(document.getHeadersFooters().empty());
    EXPECT_TRUE(document.getComments().empty());
    EXPECT_TRUE(document.getNotes().empty());
    EXPECT_EQ(document.getTheme(), nullptr);
    EXPECT_EQ(document.getColorMap(), nullptr);
    EXPECT_EQ(document.getDefaultSectionProps(), SectionProps());
    EXPECT_TRUE(document.getDefinedNames().empty());
    EXPECT_FALSE(document.isChangesTrackingEnabled());
    EXPECT_EQ(document.getTimeZone(), TimeZone(0));
}

TEST(DOM_Document, WritesSixteenKeysInOrder)
{
    const std::string expected =
        R"({"_documentProperties":{"_category":{"hasValue":false},"_contentStatus":{"hasValue":false},)"
        R"("_description":{"hasValue":false},"_language":{"hasValue":false},"_title":{"hasValue":false}},)"
        R"("_textWithTombstones":{"_blocks":[],"_tombstones":{"_tombstones":[]}},)"
        R"("_scripts":{"_scriptsByName":[]},"_styles":)" +
        toJson(Styles()) + R"(,"_numLists":[],"_tabStopDistance":36.0,"_headersFooters":)" +
        EmptyCollectionJson + R"(,"_comments":)" + EmptyCollectionJson + R"(,"_notes":)" +
        EmptyCollectionJson +
        R"(,"_theme":{"ptr_wrapper":{"valid":0}},"_colorMap":{"ptr_wrapper":{"valid":0}},"_sectionProps":)" +
        toJson(SectionProps()) +
        R"(,"_sharedObjectFactory":{},"_definedNames":[],"_trackingChanges":false,"_timeZone":{"_offset":0}})";
    EXPECT_EQ(toJson(Document()), expected);
}

TEST(DOM_Document, HoldsWhatIsSet)
{
    const Document document = makeFullDocument();
    EXPECT_EQ(*document.getProps().getTitle(), "title");
    EXPECT_EQ(document.getBlocks().size(), 5U);
    EXPECT_EQ(&document.getBlocks().front(), &document.getTextWithTombstones().getBlocks().front());
    EXPECT_EQ(document.getTextWithTombstones().getTombstones().getTombstonesCount(), 1U);
    EXPECT_EQ(*document.getScripts().getScript("name"), "text");
    EXPECT_EQ(document.getStyles().getDefaultParagraphStyleUUID(), makeUUID('1'));
    EXPECT_EQ(document.getNumLists().front().getUUID(), makeUUID('2'));
    EXPECT_EQ(document.getTabStopDistance(), 12.5F);
    EXPECT_NE(document.getHeadersFooters().find(makeUUID('3')), nullptr);
    EXPECT_NE(document.getComments().find(makeUUID('4')), nullptr);
    EXPECT_NE(document.getNotes().find(makeUUID('5')), nullptr);
    EXPECT_NE(document.getTheme(), nullptr);
    EXPECT_NE(document.getColorMap(), nullptr);
    EXPECT_TRUE(document.getDefaultSectionProps().getGutter() == 1.5F);
    EXPECT_EQ(document.getDefinedNames().size(), 1U);
    EXPECT_TRUE(document.isChangesTrackingEnabled());
    EXPECT_EQ(document.getTimeZone(), TimeZone(90));
}

TEST(DOM_Document, SettingNoThemeClearsIt)
{
    Document document;
    document.setTheme(std::make_unique<Theme>());
    const Theme* const first = document.getTheme();
    EXPECT_NE(first, nullptr);
    document.setTheme(nullptr);
    EXPECT_EQ(document.getTheme(), nullptr);
    document.setColorMap(std::make_unique<ColorMap>());
    document.setColorMap(nullptr);
    EXPECT_EQ(document.getColorMap(), nullptr);
}

TEST(DOM_Document, SettingAThemeDestroysTheFormerOne)
{
    const auto bytes = std::make_shared<const std::string>("image");
    Document document;
    document.setTheme(makeThemeWithImage(bytes));
    EXPECT_EQ(bytes.use_count(), 2);
    document.setTheme(nullptr);
    EXPECT_EQ(bytes.use_count(), 1);
    document.setTheme(makeThemeWithImage(bytes));
    document.setTheme(std::make_unique<Theme>());
    EXPECT_EQ(bytes.use_count(), 1);
}

TEST(DOM_Document, ATabStopDistanceThatIsNoNumberSurvivesAFile)
{
    Document document;
    document.setTabStopDistance(std::numeric_limits<float>::quiet_NaN());
    EXPECT_TRUE(std::isnan(fromJson<Document>(toJson(document)).getTabStopDistance()));
}

TEST(DOM_Document, CopiesAndMoves)
{
    expectCopiesAndMoves(Document());
    expectCopiesAndMoves(makeFullDocument());
    EXPECT_TRUE(std::is_nothrow_move_assignable_v<Document>);
}

TEST(DOM_Document, AssigningItToItselfChangesNothing)
{
    Document document = makeFullDocument();
    const Block* const block = document.getBlocks().front().get();
    const Document& itself = document;
    document = itself;
    EXPECT_EQ(document, makeFullDocument());
    EXPECT_EQ(document.getBlocks().front().get(), block);
}

TEST(DOM_Document, ACopyHasTheIdentitiesOfItsSourceAndSharesNothingThatCanChange)
{
    const Document document = makeFullDocument();
    const Document expected = document;
    Document copy = document;
    EXPECT_EQ(copy.getBlocks().front()->getID(), document.getBlocks().front().getID());

    copy.getProps().setTitle(boost::none);
    dynamic_cast<Paragraph&>(*copy.getBlocks().front()).getRuns().clear();
    copy.getScripts().removeScript("name");
    copy.getNumLists().front().setUUID(makeUUID('9'));
    copy.getHeadersFooters().find(makeUUID('3'))->setNextHeaderFooterUUID(makeUUID('9'));
    copy.getComments().find(makeUUID('4'))->setResolved(true);
    copy.getNotes().find(makeUUID('5'))->setAlwaysVisible(true);
    dynamic_cast<FormulaSyntaxTree::Number&>(*copy.getDefinedNames()["name"]).setValue(9);
    EXPECT_EQ(document, expected);
    EXPECT_NE(copy.getTheme(), document.getTheme());
    EXPECT_NE(copy.getColorMap(), document.getColorMap());
}

TEST(DOM_Document, AnExpressionThatIsNullStaysSoInACopy)
{
    Document document;
    document.getDefinedNames()["name"] = nullptr;
    const Document copy = document;
    ASSERT_EQ(copy.getDefinedNames().size(), 1U);
    EXPECT_TRUE(copy.getDefinedNames().at("name") == nullptr);
    EXPECT_EQ(copy, document);
}

TEST(DOM_Document, ACopyThatFailsLeavesTheTargetAsItWas)
{
    Document source;
    source.getProps().setTitle(std::string("of the source"));
    auto paragraph = std::make_unique<Paragraph>();
    paragraph->getRuns().push_back(std::make_unique<UncopyableRun>());
    source.getBlocks().push_back(std::move(paragraph));
    EXPECT_THROW(makeCopy(source), std::bad_alloc);

    Document target = makeFullDocument();
    const Block* const block = target.getBlocks().front().get();
    EXPECT_THROW(target = source, std::bad_alloc);
    EXPECT_EQ(target, makeFullDocument());
    EXPECT_EQ(target.getBlocks().front().get(), block);
}

TEST(DOM_Document, ADocumentThatWasMovedFromCanBeFilledAgain)
{
    Document document = makeFullDocument();
    const Document moved = std::move(document);
    EXPECT_EQ(moved, makeFullDocument());
    loadJson(toJson(Document()), document);
    EXPECT_EQ(document, Document());
}

TEST(DOM_Document, SwappingItWithItselfChangesNothing)
{
    Document document = makeFullDocument();
    Document& itself = document;
    std::swap(document, itself);
    EXPECT_EQ(document, makeFullDocument());
}

TEST(DOM_Document, ACopyKeepsThePoolsOfItsSource)
{
    const Document document;
    RunStyle style;
    style.setParentUUID(makeUUID('1'));
    const auto shared = document.getSharedObjectFactory().create(style);
    const Document copy = document;
    EXPECT_EQ(copy.getSharedObjectFactory().create(style), shared);
}

TEST(DOM_Document, Persists)
{
    expectPersists(Document());
    expectPersists(makeFullDocument());
}

TEST(DOM_Document, ManyDefinedNamesAreSavedAgainToTheSameBytes)
{
    Document document;
    for (int index = 0; index < 300; ++index) {
        setDefinedName(document, "name " + std::to_string(index * 7919 % 300), index);
    }
    expectRoundTrip(document);
}

TEST(DOM_Document, WritesADefinedNameUnderTheTextThatNamesThePointer)
{
    Document document;
    setDefinedName(document, "a", 1.5);
    document.getDefinedNames()["b"] = nullptr;
    const std::string expression =
        R"#({"key":"a","value":{"this->getPtr()":{"polymorphic_id":2147483649,)#"
        R"("polymorphic_name":"QN::DOM::FormulaSyntaxTree::Number","ptr_wrapper":{"valid":1,"data":)" +
        toJson(FormulaSyntaxTree::Number(1.5)) + "}}}}";
    const std::string none = R"#({"key":"b","value":{"this->getPtr()":{"polymorphic_id":0}}})#";
    const std::string json = toJson(document);
    EXPECT_NE(json.find(expression), std::string::npos) << json;
    EXPECT_NE(json.find(none), std::string::npos) << json;
}

TEST(DOM_Document, ASharedStyleIsWrittenOnceAndStaysShared)
{
    const Document document = makeFullDocument();
    const std::string json = toJson(document);
    const std::string uuid = makeUUIDJson('6');
    EXPECT_EQ(json.find(uuid), json.rfind(uuid));

    const auto loaded = fromJson<Document>(json);
    const auto& paragraph = dynamic_cast<const Paragraph&>(loaded.getBlocks()[1]);
    EXPECT_EQ(paragraph.getRuns()[0].getSharedStyle(), paragraph.getSharedParaMarkStyle());
    EXPECT_EQ(paragraph.getParaMarkStyle().getParentUUID(), makeUUID('6'));
}

TEST(DOM_Document, LoadingReplacesAllContentAndEmptiesThePools)
{
    Document document = makeFullDocument();
    RunStyle style;
    style.setParentUUID(makeUUID('6'));
    const auto shared = document.getSharedObjectFactory().create(style);
    loadJson(toJson(Document()), document);
    EXPECT_EQ(document, Document());
    EXPECT_NE(document.getSharedObjectFactory().create(style), shared);
}

TEST(DOM_Document, TheContentOfThePoolsInAFileIsIgnoredAndTheirKeyIsNot)
{
    std::string json = toJson(Document());
    const std::string key = R"("_sharedObjectFactory":{})";
    std::string full = json;
    full.replace(full.find(key), key.size(), R"("_sharedObjectFactory":{"_runStyles":[1,"text"]})");
    EXPECT_EQ(fromJson<Document>(full), Document());

    json.replace(json.find(key), key.size(), R"("another":{})");
    EXPECT_EQ(loadError<Document>(json),
              "JSON Parsing failed - provided NVP (_sharedObjectFactory) not found");
}

TEST(DOM_Document, AFailedLoadLeavesItPartlyFilled)
{
    std::string json = toJson(makeFullDocument());
    const std::string key = R"("_timeZone")";
    json.replace(json.find(key), key.size(), R"("another")");
    Document document;
    EXPECT_THROW(loadJson(json, document), cereal::Exception);
    EXPECT_EQ(*document.getProps().getTitle(), "title");
    EXPECT_EQ(document.getTimeZone(), TimeZone(0));
}

TEST(DOM_Document, AMapEntryOfADefinedNameGivenTwiceKeepsTheFirst)
{
    Document document;
    setDefinedName(document, "a", 1.5);
    std::string json = toJson(document);
    const std::string entry = R"#({"key":"a","value":{"this->getPtr()":{"polymorphic_id":0}}})#";
    const std::string key = R"("_definedNames":[)";
    json.insert(json.find(key) + key.size(), entry + ",");
    const auto loaded = fromJson<Document>(json);
    ASSERT_EQ(loaded.getDefinedNames().size(), 1U);
    EXPECT_TRUE(loaded.getDefinedNames().at("a") == nullptr);
}

TEST(DOM_DocumentDeathTest, ReadingANullBlockFailsTheContract)
{
    const Document document = makeFullDocument();
    EXPECT_DEATH(document.getBlocks().back(), "Utils/Public/Ptr/PtrUtils:254: plainPtr");
}

TEST(DOM_DocumentDeathTest, AValidDocumentWithACallWithoutArgumentsCannotBeCopied)
{
    Document document;
    document.getDefinedNames()["name"] = std::make_unique<FormulaSyntaxTree::FunctionCall>();
    document = fromJson<Document>(toJson(document));
    Validator().validate(document);
    EXPECT_TRUE(Validator::collectFindings(document).empty());
    EXPECT_DEATH(Document{std::as_const(document)}, "argsRange\\.begin\\(\\) != end");
}

} // namespace
} // namespace QN::DOM::DocumentTest
