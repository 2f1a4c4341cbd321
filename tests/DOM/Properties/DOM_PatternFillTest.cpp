#include "DOM/Properties/DOM_PatternFill.h"

#include <gtest/gtest.h>

#include "DOM/Properties/DOM_NoFill.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::PatternFillTest {

using namespace Test;

TEST(PatternFillTest, PersistsAsNothingButItsEmptyBase)
{
    EXPECT_EQ(toJson(PatternFill()), R"({"value0":{}})");
    expectPersists(PatternFill());
}

TEST(PatternFillTest, EqualsEveryOtherPatternFillAndDiffersFromEveryNoFill)
{
    expectAscending<PatternFill>({PatternFill()});
    EXPECT_TRUE(areDeeplyEqual(PatternFill(), PatternFill()));
    EXPECT_FALSE(areDeeplyEqual(PatternFill(), NoFill()));
    EXPECT_FALSE(areDeeplyEqual(NoFill(), PatternFill()));
}

TEST(PatternFillTest, IsCopiedAndMoved)
{
    expectCopiesAndMoves(PatternFill());
}

} // namespace QN::DOM::PatternFillTest
