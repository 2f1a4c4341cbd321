#include "DOM/DOM_BookmarkRun.h"

#include <gtest/gtest.h>

#include "DOM/TextSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::BookmarkRunTest {
namespace {

using namespace QN::Test;

TEST(DOM_BookmarkRun, HoldsItsName)
{
    EXPECT_EQ(BookmarkRun().getBookmarkName(), "");
    BookmarkRun run("one");
    EXPECT_EQ(run.getBookmarkName(), "one");
    run.setBookmarkName("two");
    EXPECT_EQ(run.getBookmarkName(), "two");
}

TEST(DOM_BookmarkRun, ReadsAsTheBookmarkCharacterAndNotAsItsName)
{
    EXPECT_EQ(BookmarkRun("name").getText(), "\xEE\x80\x81");
}

TEST(DOM_BookmarkRun, ComparesStyleAndName)
{
    EXPECT_EQ(BookmarkRun("a"), BookmarkRun("a"));
    EXPECT_NE(BookmarkRun("a"), BookmarkRun("b"));
    BookmarkRun styled("a");
    styled.getSharedStyle() = makeSharedStyle<RunStyle>('1');
    EXPECT_NE(styled, BookmarkRun("a"));
}

TEST(DOM_BookmarkRun, CopiesAndMoves)
{
    expectCopiesAndMoves(BookmarkRun("a"));
}

TEST(DOM_BookmarkRun, WritesItsName)
{
    EXPECT_EQ(toJson(BookmarkRun("a")), std::string("{") + PlainRunJson + R"(,"_bookmarkName":"a"})");
}

TEST(DOM_BookmarkRun, Persists)
{
    expectPersists(BookmarkRun());
    expectPersists(BookmarkRun("a"));
}

} // namespace
} // namespace QN::DOM::BookmarkRunTest
