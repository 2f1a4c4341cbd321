#include "DOM/FormulaSyntaxTree/DOM_Empty.h"

#include <gtest/gtest.h>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::EmptyTest {

TEST(EmptyTest, HasNoMembersAndEqualsAnyOther)
{
    EXPECT_EQ(Empty(), Empty());
    EXPECT_EQ(toJson(Empty()), R"({"value0":{"value0":{}}})");
    expectNode(std::make_unique<Empty>());
    expectCopiesAndMoves(Empty());
}

} // namespace QN::DOM::FormulaSyntaxTree::EmptyTest
