#include "DOM/Properties/DOM_NoFill.h"

#include <gtest/gtest.h>

#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::NoFillTest {

using namespace Test;

TEST(NoFillTest, PersistsAsNothingButItsEmptyBase)
{
    EXPECT_EQ(toJson(NoFill()), R"({"value0":{}})");
    expectPersists(NoFill());
}

TEST(NoFillTest, AllAreEqual)
{
    expectAscending<NoFill>({NoFill()});
    EXPECT_EQ(NoFill(), NoFill());
    EXPECT_FALSE(NoFill() < NoFill());
}

TEST(NoFillTest, IsCopiedAndMoved)
{
    expectCopiesAndMoves(NoFill());
}

} // namespace QN::DOM::NoFillTest
