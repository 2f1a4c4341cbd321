#include "DOM/DOM_PageReferenceInfo.h"

#include <gtest/gtest.h>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::PageReferenceInfoTest {
namespace {

using namespace QN::Test;

TEST(DOM_PageReferenceInfo, HoldsTheNameOfABookmark)
{
    EXPECT_EQ(PageReferenceInfo().getReferredBookmarkName(), "");
    EXPECT_EQ(PageReferenceInfo("a").getReferredBookmarkName(), "a");
    EXPECT_NE(PageReferenceInfo("a"), PageReferenceInfo("b"));
    expectCopiesAndMoves(PageReferenceInfo("a"));
}

TEST(DOM_PageReferenceInfo, Persists)
{
    EXPECT_EQ(toJson(PageReferenceInfo("a")), R"({"_referredBookmarkName":"a"})");
    expectPersists(PageReferenceInfo());
    expectPersists(PageReferenceInfo("a"));
}

} // namespace
} // namespace QN::DOM::PageReferenceInfoTest
