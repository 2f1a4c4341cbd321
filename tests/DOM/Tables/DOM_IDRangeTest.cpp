#include "DOM/Tables/DOM_IDRange.h"

#include <boost/optional/optional.hpp>

#include <gtest/gtest.h>

#include "DOM/Tables/DOM_RowColumnID.h"

namespace QN::DOM::IDRangeTest {
namespace {

TEST(DOM_IDRange, HoldsBothEndsAndHasNoneByDefault)
{
    EXPECT_EQ(IDRange<RowID>(), (IDRange<RowID>{RowID(0), RowID(0)}));
    EXPECT_EQ(IDRange<boost::optional<ColumnID>>(),
              (IDRange<boost::optional<ColumnID>>{boost::none, boost::none}));
    const IDRange<ColumnID> range{ColumnID(3), ColumnID(5)};
    EXPECT_EQ(range.begin, ColumnID(3));
    EXPECT_EQ(range.last, ColumnID(5));
}

TEST(DOM_IDRange, ComparesBothEnds)
{
    using Range = IDRange<boost::optional<RowID>>;
    EXPECT_EQ((Range{RowID(1), RowID(2)}), (Range{RowID(1), RowID(2)}));
    EXPECT_NE((Range{RowID(1), RowID(2)}), (Range{RowID(1), RowID(3)}));
    EXPECT_NE((Range{RowID(1), RowID(2)}), (Range{boost::none, RowID(2)}));
}

} // namespace
} // namespace QN::DOM::IDRangeTest
