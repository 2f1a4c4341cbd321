#include "DOM/Tables/DOM_RareValue.h"

#include <gtest/gtest.h>

#include "DOM/Tables/Properties/DOM_CellMergeProps.h"
#include "DOM/ValueChecks.h"
#include "Support/AllocationCount.h"
#include "Support/ValueText.h"

namespace QN::DOM::RareValueTest {
namespace {

using namespace QN::Test;
using RareProps = RareValue<CellMergeProps>;

RareProps makeValue(std::uint64_t rows)
{
    RareProps value;
    value.set(CellMergeProps(rows, 2));
    return value;
}

TEST(DOM_RareValue, CostsOnePointerWhileItIsTheDefault)
{
    EXPECT_EQ(sizeof(RareProps), sizeof(void*));
    RareProps().get();
    EXPECT_EQ(countAllocations([] {
                  RareProps value;
                  value.set(CellMergeProps());
                  const RareProps copy(value);
                  EXPECT_EQ(copy.get().getCapturedRowsCount(), 0U);
              }),
              0U);
}

TEST(DOM_RareValue, HoldsAnotherValueAndTheDefaultAgain)
{
    RareProps value = makeValue(3);
    EXPECT_EQ(value.get(), CellMergeProps(3, 2));
    value.set(CellMergeProps());
    EXPECT_EQ(value, RareProps());
}

TEST(DOM_RareValue, CopiesAndComparesByValue)
{
    EXPECT_EQ(makeValue(3), makeValue(3));
    EXPECT_NE(makeValue(3), makeValue(4));
    EXPECT_NE(makeValue(3), RareProps());
    expectCopiesAndMoves(makeValue(3));
    const RareProps source = makeValue(3);
    RareProps copy(source);
    copy.set(CellMergeProps(9, 9));
    EXPECT_EQ(source, makeValue(3));
}

TEST(DOM_RareValue, IsWrittenAsTheValueItself)
{
    expectText(RareProps(), R"({"_capturedRowsCount":0,"_capturedColsCount":0})");
    expectText(makeValue(3), R"({"_capturedRowsCount":3,"_capturedColsCount":2})");
}

} // namespace
} // namespace QN::DOM::RareValueTest
