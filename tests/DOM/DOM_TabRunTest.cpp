#include "DOM/DOM_TabRun.h"

#include <gtest/gtest.h>

#include "DOM/TextSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::TabRunTest {
namespace {

using namespace QN::Test;

TEST(DOM_TabRun, ReadsAsATab)
{
    EXPECT_EQ(TabRun().getText(), "\t");
}

TEST(DOM_TabRun, ComparesItsStyleAlone)
{
    TabRun run;
    EXPECT_EQ(run, TabRun());
    run.getSharedStyle() = makeSharedStyle<RunStyle>('1');
    EXPECT_NE(run, TabRun());
}

TEST(DOM_TabRun, CopiesAndMoves)
{
    TabRun run;
    run.getSharedStyle() = makeSharedStyle<RunStyle>('1');
    expectCopiesAndMoves(run);
}

TEST(DOM_TabRun, WritesItsBaseAlone)
{
    EXPECT_EQ(toJson(TabRun()), std::string("{") + PlainRunJson + "}");
}

TEST(DOM_TabRun, Persists)
{
    expectPersists(TabRun());
    TabRun run;
    run.getSharedStyle() = makeSharedStyle<RunStyle>('1');
    expectPersists(run);
}

} // namespace
} // namespace QN::DOM::TabRunTest
