#include "DOM/Tables/DOM_RareValue.h"

#include <boost/optional/optional.hpp>

#include <gtest/gtest.h>

#include <vector>

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

TEST(DOM_RareValue, IsChangedInPlace)
{
    RareProps value;
    value.edit().setCapturedRowsCount(3);
    value.edit().setCapturedColsCount(2);
    EXPECT_EQ(value, makeValue(3));
}

TEST(DOM_RareValue, EqualsTheDefaultAfterAnEditThatChangesNothing)
{
    RareProps value;
    value.edit();
    EXPECT_EQ(value, RareProps());
    EXPECT_EQ(RareProps(), value);
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

TEST(DOM_RareValue, HoldsValuesOfAnyKind)
{
    RareValue<std::vector<int>> numbers;
    expectText(numbers, "[]");
    numbers.edit().push_back(4);
    expectText(numbers, "[4]");
    RareValue<boost::optional<int>> optional;
    expectText(optional, R"({"hasValue":false})");
    optional.set(5);
    expectText(optional, R"({"hasValue":true,"value":5})");
}

} // namespace
} // namespace QN::DOM::RareValueTest
