#include "DOM/DOM_AnchorRun.h"

#include <gtest/gtest.h>

#include "DOM/TextSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::AnchorRunTest {
namespace {

using namespace QN::Test;

TEST(DOM_AnchorRun, ReadsAsTheAnchorCharacter)
{
    EXPECT_EQ(AnchorRun().getText(), "\xEE\x80\x83");
}

TEST(DOM_AnchorRun, ComparesItsStyleAlone)
{
    AnchorRun run;
    EXPECT_EQ(run, AnchorRun());
    run.getSharedStyle() = makeSharedStyle<RunStyle>('1');
    EXPECT_NE(run, AnchorRun());
}

TEST(DOM_AnchorRun, CopiesAndMoves)
{
    AnchorRun run;
    run.getSharedStyle() = makeSharedStyle<RunStyle>('1');
    expectCopiesAndMoves(run);
}

TEST(DOM_AnchorRun, WritesItsBaseAlone)
{
    EXPECT_EQ(toJson(AnchorRun()), std::string("{") + PlainRunJson + "}");
}

TEST(DOM_AnchorRun, Persists)
{
    expectPersists(AnchorRun());
    AnchorRun run;
    run.getSharedStyle() = makeSharedStyle<RunStyle>('1');
    expectPersists(run);
}

} // namespace
} // namespace QN::DOM::AnchorRunTest
