#include "DOM/FormulaSyntaxTree/DOM_FormulaFunctionType.h"

#include <gtest/gtest.h>

#include "Support/RoundTrip.h"

namespace QN::DOM::FormulaFunctionTypeTest {

TEST(FormulaFunctionTypeTest, IsAPlainNumberOfSixteenBitsInAFile)
{
    EXPECT_EQ(sizeof(FormulaFunctionType), 2U);
    EXPECT_EQ(QN::Test::toJson(FormulaFunctionType(65535)), R"({"object":65535})");
    EXPECT_EQ(QN::Test::fromJson<FormulaFunctionType>(R"({"object":65535})"), FormulaFunctionType(65535));
}

} // namespace QN::DOM::FormulaFunctionTypeTest
