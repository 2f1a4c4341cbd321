#include "DOM/FormulaSyntaxTree/DOM_String.h"

#include <gtest/gtest.h>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::StringTest {

TEST(StringTest, IsEmptyByDefaultAndKeepsItsText)
{
    EXPECT_EQ(String().getValue(), "");
    EXPECT_EQ(String("text").getValue(), "text");
    EXPECT_EQ(String("text"), String("text"));
    EXPECT_NE(String("text"), String("Text"));
}

TEST(StringTest, PersistsItsTextBehindTheBases)
{
    EXPECT_EQ(toJson(String("a\"b")), R"({"value0":{"value0":{}},"_value":"a\"b"})");
    expectNode(text("text"));
    expectNode(text(std::string("nul\0inside", 10)));
    expectCopiesAndMoves(String("text"));
}

} // namespace QN::DOM::FormulaSyntaxTree::StringTest
