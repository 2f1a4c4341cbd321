#include "DOM/DOM_TextRun.h"

#include <gtest/gtest.h>

#include "DOM/TextSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::TextRunTest {
namespace {

using namespace QN::Test;

TEST(DOM_TextRun, MayBeEmpty)
{
    EXPECT_EQ(TextRun().getText(), "");
    EXPECT_EQ(TextRun(), TextRun(""));
}

TEST(DOM_TextRun, HoldsItsText)
{
    TextRun run("one");
    EXPECT_EQ(run.getText(), "one");
    run.setText("two");
    EXPECT_EQ(run.getText(), "two");
}

TEST(DOM_TextRun, TakingTheTextLeavesItEmpty)
{
    for (const std::string text : {"short", "a text that is too long to stand in the string object itself"}) {
        TextRun run(text);
        EXPECT_EQ(run.takeText(), text);
        EXPECT_EQ(run.getText(), "");
    }
}

TEST(DOM_TextRun, ComparesTextByLengthAndBytes)
{
    EXPECT_EQ(TextRun("a"), TextRun("a"));
    EXPECT_NE(TextRun("a"), TextRun("b"));
    EXPECT_NE(TextRun("a"), TextRun("ab"));
    EXPECT_NE(TextRun(std::string("a\0b", 3)), TextRun(std::string("a\0c", 3)));
}

TEST(DOM_TextRun, CopiesAndMoves)
{
    TextRun run("text");
    run.getSharedStyle() = makeSharedStyle<RunStyle>('1');
    expectCopiesAndMoves(run);
}

TEST(DOM_TextRun, ACopyStrategyTellsWhetherTheTextIsTaken)
{
    EXPECT_EQ(static_cast<int>(TextRun::CopyStrategy::Everything), 0);
    EXPECT_EQ(static_cast<int>(TextRun::CopyStrategy::WithoutText), 1);

    TextRun run("text");
    run.getSharedStyle() = makeSharedStyle<RunStyle>('1');
    const TextRun whole(run, TextRun::CopyStrategy::Everything);
    EXPECT_EQ(whole, run);
    const TextRun without(run, TextRun::CopyStrategy::WithoutText);
    EXPECT_EQ(without.getText(), "");
    EXPECT_EQ(without.getSharedStyle(), run.getSharedStyle());
}

TEST(DOM_TextRun, WritesItsBaseAndItsText)
{
    EXPECT_EQ(toJson(TextRun("a\tb")), std::string("{") + PlainRunJson + R"(,"_text":"a\tb"})");
}

TEST(DOM_TextRun, Persists)
{
    expectPersists(TextRun());
    TextRun run(std::string("\0\xFF\xEE\x80\x80\n", 6));
    run.getSharedStyle() = makeSharedStyle<RunStyle>('1');
    expectPersists(run);
}

} // namespace
} // namespace QN::DOM::TextRunTest
