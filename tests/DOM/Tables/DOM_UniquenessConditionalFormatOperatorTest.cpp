#include "DOM/Tables/DOM_UniquenessConditionalFormatOperator.h"

#include <gtest/gtest.h>

#include "DOM/Tables/TablePrinters.h"
#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::UniquenessConditionalFormatOperatorTest {
namespace {

using namespace QN::Test;

TEST(DOM_UniquenessConditionalFormatOperator, IsAPlainNumberOfOneByteInAFile)
{
    static_assert(sizeof(UniquenessConditionalFormatOperator) == 1);
    expectText(UniquenessConditionalFormatOperator(), "0");
    expectText(static_cast<UniquenessConditionalFormatOperator>(255), "255");
    EXPECT_EQ(typeError<UniquenessConditionalFormatOperator>("256"), "value is within the range of its type");
}

} // namespace
} // namespace QN::DOM::UniquenessConditionalFormatOperatorTest
