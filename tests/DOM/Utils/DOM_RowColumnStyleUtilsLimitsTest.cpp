#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "DOM/Tables/TableSamples.h"
#include "DOM/Utils/DOM_RowColumnStyleUtils.h"

namespace QN::DOM::RowColumnStyleUtilsLimitsTest {

namespace {

using namespace QN::Test;

TEST(GetSparseDataWithPropsDeathTest, TheLargestIndexOfAColumnHasNoneBehindIt)
{
    const ColumnIndex largest(std::numeric_limits<std::uint64_t>::max());
    EXPECT_DEATH(static_cast<void>(Utils::getSparseDataWithProps(makeGrid(1, 1), largest)),
                 "Utils/Public/TableIndices/TableRange:230: _beginColumn < _endColumn\n");
}

} // namespace

} // namespace QN::DOM::RowColumnStyleUtilsLimitsTest
