#include "DOM/Tables/Properties/DOM_CellMergeProps.h"

#include <gtest/gtest.h>

#include <limits>

#include "DOM/ValueChecks.h"
#include "Support/ValueText.h"

namespace QN::DOM::CellMergePropsTest {
namespace {

using namespace QN::Test;

TEST(DOM_CellMergeProps, CaptureNothingByDefault)
{
    expectText(CellMergeProps(), R"({"_capturedRowsCount":0,"_capturedColsCount":0})");
}

TEST(DOM_CellMergeProps, WriteTheirCountsWithAll64Bits)
{
    CellMergeProps props;
    props.setCapturedRowsCount(3);
    props.setCapturedColsCount(std::numeric_limits<std::uint64_t>::max());
    expectText(props, R"({"_capturedRowsCount":3,"_capturedColsCount":18446744073709551615})");
    EXPECT_EQ(props.getCapturedRowsCount(), 3U);
    expectCopiesAndMoves(props);
}

TEST(DOM_CellMergeProps, OrderByRowsAndThenByColumns)
{
    expectAscending({CellMergeProps(), CellMergeProps(0, 1), CellMergeProps(1, 0), CellMergeProps(1, 2)});
}

} // namespace
} // namespace QN::DOM::CellMergePropsTest
