#include "DOM/FormulaSyntaxTree/DOM_FormulaErrorType.h"

#include <gtest/gtest.h>

#include "Support/RoundTrip.h"

namespace QN::DOM::FormulaErrorTypeTest {

TEST(FormulaErrorTypeTest, IsAPlainNumberInAFile)
{
    EXPECT_EQ(QN::Test::toJson(FormulaErrorType(1000)), R"({"object":1000})");
    EXPECT_EQ(QN::Test::fromJson<FormulaErrorType>(R"({"object":1000})"), FormulaErrorType(1000));
    EXPECT_EQ(FormulaErrorType(), FormulaErrorType(0));
}

} // namespace QN::DOM::FormulaErrorTypeTest
