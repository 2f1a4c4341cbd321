#include "DOM/FormulaSyntaxTree/DOM_Error.h"

#include <gtest/gtest.h>

#include "DOM/FormulaSyntaxTree/ExprBuilders.h"

namespace QN::DOM::FormulaSyntaxTree::ErrorTest {

TEST(ErrorTest, IsNumberZeroByDefaultAndKeepsItsValue)
{
    EXPECT_EQ(Error().getValue(), FormulaErrorType(0));
    EXPECT_EQ(Error(FormulaErrorType(6)).getValue(), FormulaErrorType(6));
    EXPECT_NE(Error(FormulaErrorType(6)), Error(FormulaErrorType(7)));
}

TEST(ErrorTest, PersistsItsNumberWhateverItIs)
{
    EXPECT_EQ(toJson(Error(FormulaErrorType(1000))), R"({"value0":{"value0":{}},"_error":1000})");
    expectNode(std::make_unique<Error>(FormulaErrorType(1000)));
    expectCopiesAndMoves(Error(FormulaErrorType(3)));
}

} // namespace QN::DOM::FormulaSyntaxTree::ErrorTest
