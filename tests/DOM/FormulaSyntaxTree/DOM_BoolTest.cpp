#include "DOM/FormulaSyntaxTree/DOM_Bool.h"

#include <gtest/gtest.h>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::BoolTest {

TEST(BoolTest, IsFalseByDefaultAndKeepsItsValue)
{
    EXPECT_FALSE(Bool().getValue());
    EXPECT_TRUE(Bool(true).getValue());
    EXPECT_NE(Bool(true), Bool(false));
}

TEST(BoolTest, PersistsItsValueBehindTheBases)
{
    EXPECT_EQ(toJson(Bool(true)), R"({"value0":{"value0":{}},"_bool":true})");
    expectNode(std::make_unique<Bool>(true));
    expectCopiesAndMoves(Bool(true));
}

} // namespace QN::DOM::FormulaSyntaxTree::BoolTest
