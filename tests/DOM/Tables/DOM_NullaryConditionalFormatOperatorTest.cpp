#include "DOM/Tables/DOM_NullaryConditionalFormatOperator.h"

#include <gtest/gtest.h>

#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::NullaryConditionalFormatOperatorTest {
namespace {

using namespace QN::Test;

TEST(DOM_NullaryConditionalFormatOperator, IsAPlainNumberOfOneByteInAFile)
{
    static_assert(sizeof(NullaryConditionalFormatOperator) == 1);
    expectText(NullaryConditionalFormatOperator(), "0");
    expectText(static_cast<NullaryConditionalFormatOperator>(255), "255");
    EXPECT_EQ(typeError<NullaryConditionalFormatOperator>("256"), "value is within the range of its type");
}

} // namespace
} // namespace QN::DOM::NullaryConditionalFormatOperatorTest
