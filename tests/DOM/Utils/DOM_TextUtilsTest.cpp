#include "DOM/Utils/DOM_TextUtils.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <exception>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "DOM/TextSamples.h"
#include "Support/AllocationCount.h"
#include "Utils/Public/UTF8.h"

namespace QN::DOM::TextUtilsTest {

namespace {

using namespace QN::Test;
using RunPtr = std::unique_ptr<DOM::Run>;

/// A tab as "<tab>", any other run as its text between apostrophes.
std::string describe(const DOM::Run& run)
{
    return dynamic_cast<const TabRun*>(&run) != nullptr ? "<tab>" : "'" + run.getText() + "'";
}

std::string describe(const Paragraph& paragraph)
{
    std::string text;
    for (const DOM::Run& run : paragraph.getRuns()) {
        text += describe(run);
    }
    return text;
}

std::string splitIntoRuns(const std::string& text)
{
    std::string described;
    splitTextIntoRuns(text, [&](RunPtr run) {
        EXPECT_FALSE(run->getSharedStyle());
        described += describe(*run);
    });
    return described;
}

using Lines = std::vector<std::string>;

Lines splitIntoParagraphs(const std::string& text)
{
    Lines lines;
    splitTextIntoParagraphs(text, [&](std::unique_ptr<Paragraph> paragraph) {
        EXPECT_EQ(*paragraph == Paragraph(), paragraph->getRuns().empty());
        lines.push_back(describe(*paragraph));
    });
    return lines;
}

template <class Action>
std::string getError(Action action)
{
    try {
        action();
    } catch (const std::exception& error) {
        return error.what();
    }
    return "<none>";
}

/// Malformed texts, each with the message of the exception.
const std::vector<std::pair<std::string, std::string>> MalformedTexts = {
    {"\x80", "Invalid UTF-8"},             // a continuation without a lead
    {"\xFF", "Invalid UTF-8"},             // a byte that UTF-8 never has
    {"\xC0\x80", "Invalid UTF-8"},         // NUL in two bytes
    {"\xE0\x82\xA9", "Invalid UTF-8"},     // U+00A9 in three bytes
    {"\xF0\x80\x80\xAF", "Invalid UTF-8"}, // a slash in four bytes
    {"\xC3z", "Invalid UTF-8"},            // a lead without its continuation
    {"\xE2\x82z", "Invalid UTF-8"},
    {"\xC3", "Not enough space"}, // the same at the end of the text
    {"\xE2\x82", "Not enough space"},
    {"\xF0\x9F\x98", "Not enough space"},
    {"\xED\xA0\x80", "Invalid code point"},             // a high surrogate
    {"\xED\xBF\xBF", "Invalid code point"},             // a low surrogate
    {"\xED\xA0\xBD\xED\xB8\x80", "Invalid code point"}, // a pair of them
    {"\xF4\x90\x80\x80", "Invalid code point"},         // U+110000
};

TEST(SplitTextIntoRunsTest, AnEmptyTextHasNoRuns)
{
    EXPECT_EQ(splitIntoRuns(""), "");
    int calls = 0;
    splitTextIntoRuns(boost::string_ref(), [&](RunPtr /*run*/) { ++calls; });
    EXPECT_EQ(calls, 0);
}

TEST(SplitTextIntoRunsTest, ATextWithoutTabsIsOneRun)
{
    EXPECT_EQ(splitIntoRuns("a"), "'a'");
    EXPECT_EQ(splitIntoRuns("Two words"), "'Two words'");
}

TEST(SplitTextIntoRunsTest, ATabIsARunOfItsOwnBetweenPiecesThatAreNotEmpty)
{
    EXPECT_EQ(splitIntoRuns("\t"), "<tab>");
    EXPECT_EQ(splitIntoRuns("\ta"), "<tab>'a'");
    EXPECT_EQ(splitIntoRuns("a\t"), "'a'<tab>");
    EXPECT_EQ(splitIntoRuns("a\tb"), "'a'<tab>'b'");
    EXPECT_EQ(splitIntoRuns("a\t\tb"), "'a'<tab><tab>'b'");
    EXPECT_EQ(splitIntoRuns("\t\t\t"), "<tab><tab><tab>");
}

TEST(SplitTextIntoRunsTest, LineEndsAreTextLikeAnyOther)
{
    EXPECT_EQ(splitIntoRuns("a\nb\r\nc\n"), "'a\nb\r\nc\n'");
    EXPECT_EQ(splitIntoRuns("\r\t\n"), "'\r'<tab>'\n'");
}

TEST(SplitTextIntoRunsTest, TextOfAnyPlaneAndNulPassUnchanged)
{
    const std::string text = std::string("\0", 1) +
                             "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80" +
                             "\xEF\xBB\xBF\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF";
    EXPECT_EQ(splitIntoRuns(text), "'" + text + "'");
    EXPECT_EQ(splitIntoRuns(text + "\t" + text), "'" + text + "'<tab>'" + text + "'");
}

TEST(SplitTextIntoRunsTest, OtherSpacesAreNoTabs)
{
    // A vertical tab, a no-break space, and U+0409 with U+2009, whose last bytes or digits are like those of a tab.
    EXPECT_EQ(splitIntoRuns("\v\xC2\xA0\xD0\x89\xE2\x80\x89"), "'\v\xC2\xA0\xD0\x89\xE2\x80\x89'");
}

TEST(SplitTextIntoRunsTest, OnlyTheGivenPartOfALongerTextIsRead)
{
    std::string described;
    splitTextIntoRuns(boost::string_ref("a\tb\xFF", 3), [&](RunPtr run) { described += describe(*run); });
    EXPECT_EQ(described, "'a'<tab>'b'");
}

TEST(SplitTextIntoRunsTest, MalformedTextThrows)
{
    for (const auto& [text, message] : MalformedTexts) {
        EXPECT_EQ(getError([&, &malformed = text] { splitIntoRuns("good" + malformed); }), message);
        EXPECT_EQ(getError([&, &malformed = text] { splitIntoRuns("\t" + malformed); }), message);
    }
}

TEST(SplitTextIntoRunsTest, RunsBeforeAMalformedPlaceStayHandedOnAndItsPieceDoesNot)
{
    std::string described;
    const auto sink = [&](RunPtr run) { described += describe(*run); };
    EXPECT_EQ(getError([&] { splitTextIntoRuns("a\tb\xFF\tc", sink); }), "Invalid UTF-8");
    EXPECT_EQ(described, "'a'<tab>");
}

TEST(SplitTextIntoRunsTest, AnExceptionOfTheSinkPassesThrough)
{
    const auto sink = [](RunPtr /*run*/) { throw std::runtime_error("sink"); };
    EXPECT_EQ(getError([&] { splitTextIntoRuns("a", sink); }), "sink");
}

TEST(SplitTextLineIntoRunsWithPropertiesTest, AppendsRunsWithTheStyle)
{
    Paragraph paragraph = makeParagraphValue({"before"});
    const auto style = makeSharedStyle<RunStyle>('1');
    splitTextLineIntoRunsWithProperties("a\tb", paragraph, style);
    EXPECT_EQ(describe(paragraph), "'before''a'<tab>'b'");
    EXPECT_FALSE(paragraph.getRuns()[0]->getSharedStyle());
    for (const std::size_t index : {1U, 2U, 3U}) {
        EXPECT_EQ(paragraph.getRuns()[index]->getSharedStyle(), style) << index;
    }
}

TEST(SplitTextLineIntoRunsWithPropertiesTest, ANullHandleIsAStyleToo)
{
    Paragraph paragraph;
    splitTextLineIntoRunsWithProperties("a\t", paragraph, nullptr);
    EXPECT_EQ(describe(paragraph), "'a'<tab>");
    EXPECT_FALSE(paragraph.getRuns()[0]->getSharedStyle());
}

TEST(SplitTextLineIntoRunsWithPropertiesTest, AnEmptyTextAppendsNothing)
{
    Paragraph paragraph = makeParagraphValue({"before"});
    splitTextLineIntoRunsWithProperties("", paragraph, makeSharedStyle<RunStyle>('1'));
    EXPECT_EQ(describe(paragraph), "'before'");
}

TEST(SplitTextLineIntoRunsWithPropertiesTest, LineEndsAreTextLikeAnyOther)
{
    Paragraph paragraph;
    splitTextLineIntoRunsWithProperties("a\r\n\tb\n", paragraph, nullptr);
    EXPECT_EQ(describe(paragraph), "'a\r\n'<tab>'b\n'");
}

TEST(SplitTextLineIntoRunsWithPropertiesTest, TheStyleMayBeThatOfARunOfTheParagraph)
{
    Paragraph paragraph = makeParagraphValue({"before"});
    const auto style = makeSharedStyle<RunStyle>('1');
    paragraph.getRuns()[0]->getSharedStyle() = style;
    splitTextLineIntoRunsWithProperties("a\tb\tc\td", paragraph, paragraph.getRuns()[0]->getSharedStyle());
    for (const auto& run : paragraph.getRuns()) {
        EXPECT_EQ(run->getSharedStyle(), style);
    }
}

TEST(SplitTextLineIntoRunsWithPropertiesTest, MalformedTextThrowsAndWhatWasAppendedStays)
{
    for (const auto& [text, message] : MalformedTexts) {
        Paragraph paragraph;
        const std::string line = "a\tb" + text;
        EXPECT_EQ(getError([&] { splitTextLineIntoRunsWithProperties(line, paragraph, nullptr); }), message);
        EXPECT_EQ(describe(paragraph), "'a'<tab>");
    }
}

TEST(SplitTextIntoParagraphsTest, AnEmptyTextHasNoParagraph)
{
    EXPECT_EQ(splitIntoParagraphs(""), Lines());
}

TEST(SplitTextIntoParagraphsTest, ATextWithoutALineEndIsOneParagraph)
{
    EXPECT_EQ(splitIntoParagraphs("a"), Lines({"'a'"}));
    EXPECT_EQ(splitIntoParagraphs("\ta"), Lines({"<tab>'a'"}));
}

TEST(SplitTextIntoParagraphsTest, ALineFeedAloneIsTwoEmptyParagraphs)
{
    EXPECT_EQ(splitIntoParagraphs("\n"), Lines({"", ""}));
    EXPECT_EQ(splitIntoParagraphs("\r\n"), Lines({"", ""}));
}

TEST(SplitTextIntoParagraphsTest, ALineEndAtTheEndGivesAClosingEmptyParagraph)
{
    EXPECT_EQ(splitIntoParagraphs("a\n"), Lines({"'a'", ""}));
    EXPECT_EQ(splitIntoParagraphs("a\r\n"), Lines({"'a'", ""}));
    EXPECT_EQ(splitIntoParagraphs("a\r"), Lines({"'a'", ""}));
}

TEST(SplitTextIntoParagraphsTest, OnlyACarriageReturnAndALineFeedInThisOrderAreOneLineEnd)
{
    EXPECT_EQ(splitIntoParagraphs("a\r\nb"), Lines({"'a'", "'b'"}));
    EXPECT_EQ(splitIntoParagraphs("a\n\rb"), Lines({"'a'", "", "'b'"}));
    EXPECT_EQ(splitIntoParagraphs("a\r\r\nb"), Lines({"'a'", "", "'b'"}));
    EXPECT_EQ(splitIntoParagraphs("a\r\n\nb"), Lines({"'a'", "", "'b'"}));
    EXPECT_EQ(splitIntoParagraphs("a\r\n\r\nb"), Lines({"'a'", "", "'b'"}));
    EXPECT_EQ(splitIntoParagraphs("a\n\nb"), Lines({"'a'", "", "'b'"}));
    EXPECT_EQ(splitIntoParagraphs("a\r\t\nb"), Lines({"'a'", "<tab>", "'b'"}));
}

TEST(SplitTextIntoParagraphsTest, EveryCodePointThatEndsALineDoes)
{
    for (const char32_t codePoint : {U'\n', U'\r', U'\u0085', U'\u2028', U'\u2029'}) {
        ASSERT_TRUE(isEOL(codePoint));
        EXPECT_EQ(splitIntoParagraphs("a" + getUTF8String(codePoint) + "b"), Lines({"'a'", "'b'"}));
        EXPECT_EQ(splitIntoParagraphs(getUTF8String(codePoint)), Lines({"", ""}));
    }
    EXPECT_EQ(splitIntoParagraphs("a\xE2\x80\xA8\nb"), Lines({"'a'", "", "'b'"}));
    EXPECT_EQ(splitIntoParagraphs("a\f\vb"), Lines({"'a\f\vb'"}));
}

TEST(SplitTextIntoParagraphsTest, TabsSplitEachLine)
{
    EXPECT_EQ(splitIntoParagraphs("a\tb\n\t\nc\t"), Lines({"'a'<tab>'b'", "<tab>", "'c'<tab>"}));
}

TEST(SplitTextIntoParagraphsTest, AnEmptyParagraphHasNoRuns)
{
    splitTextIntoParagraphs(
        "\n", [](std::unique_ptr<Paragraph> paragraph) { EXPECT_TRUE(paragraph->getRuns().empty()); });
}

TEST(SplitTextIntoParagraphsTest, ParagraphsAreOneMoreThanLineEndsAndGiveTheTextBack)
{
    const unsigned seed = std::random_device()();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::vector<std::string> pieces = {"a", "\t", "\n", "\xC3\xA4", "\xF0\x9F\x98\x80", "bc"};
    for (int round = 0; round < 500; ++round) {
        std::string text = "x";
        Lines expected = {"x"};
        for (auto count = random() % 12; count > 0; --count) {
            const std::string& piece = pieces[random() % pieces.size()];
            text += piece;
            if (piece == "\n") {
                expected.emplace_back();
            } else {
                expected.back() += piece;
            }
        }
        std::vector<std::unique_ptr<Block>> blocks;
        splitTextIntoParagraphs(text, [&](std::unique_ptr<Paragraph> paragraph) {
            std::string line;
            for (const DOM::Run& run : std::as_const(*paragraph).getRuns()) {
                EXPECT_FALSE(run.getText().empty());
                line += run.getText();
            }
            EXPECT_EQ(line, expected[blocks.size()]);
            blocks.push_back(std::move(paragraph));
        });
        ASSERT_EQ(blocks.size(), expected.size()) << text;
        ASSERT_EQ(getTextFromParagraphs(blocks), text);
    }
}

TEST(SplitTextIntoParagraphsTest, MalformedTextThrowsAndParagraphsBeforeItStayHandedOn)
{
    for (const auto& [text, message] : MalformedTexts) {
        Lines lines;
        const auto sink = [&](std::unique_ptr<Paragraph> paragraph) {
            lines.push_back(describe(*paragraph));
        };
        const std::string lineAndMalformed = "a\nb\t" + text;
        EXPECT_EQ(getError([&] { splitTextIntoParagraphs(lineAndMalformed, sink); }), message);
        EXPECT_EQ(lines, Lines({"'a'"}));
        const std::string malformedAtOnce = text + "\na";
        lines.clear();
        EXPECT_NE(getError([&] { splitTextIntoParagraphs(malformedAtOnce, sink); }), "<none>");
        EXPECT_EQ(lines, Lines());
    }
}

TEST(SplitTextIntoParagraphsTest, AMalformedPlaceBehindACarriageReturnEndsTheWalkThere)
{
    Lines lines;
    const auto sink = [&](std::unique_ptr<Paragraph> paragraph) { lines.push_back(describe(*paragraph)); };
    EXPECT_EQ(getError([&] { splitTextIntoParagraphs("a\r\xFF", sink); }), "Invalid UTF-8");
    EXPECT_EQ(lines, Lines({"'a'"}));
}

TEST(SplitTextIntoParagraphsTest, AnExceptionOfTheSinkPassesThrough)
{
    int calls = 0;
    const auto sink = [&](std::unique_ptr<Paragraph> /*paragraph*/) {
        ++calls;
        throw std::runtime_error("sink");
    };
    EXPECT_EQ(getError([&] { splitTextIntoParagraphs("a\nb", sink); }), "sink");
    EXPECT_EQ(calls, 1);
}

TEST(SplitTextIntoParagraphsTest, WorkGrowsWithTheText)
{
    const auto countFor = [](std::size_t lines) {
        std::string text;
        for (std::size_t line = 0; line < lines; ++line) {
            text += "a line with a\ttab\n";
        }
        return countAllocations(
            [&] { splitTextIntoParagraphs(text, [](std::unique_ptr<Paragraph> /*paragraph*/) {}); });
    };
    EXPECT_LE(countFor(10000), 11 * countFor(1000));
}

} // namespace

} // namespace QN::DOM::TextUtilsTest
