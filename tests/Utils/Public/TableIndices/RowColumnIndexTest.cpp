#include "Utils/Public/TableIndices/RowColumnIndex.h"

#include <gtest/gtest.h>

#include <concepts>
#include <cstdint>
#include <type_traits>

namespace QN::RowColumnIndexTest {

namespace {

using QN::ColumnIndex;
using QN::RowIndex;

TEST(RowColumnIndexTest, RowsAndColumnsDoNotMix)
{
    static_assert(!std::is_convertible_v<RowIndex, ColumnIndex>);
    static_assert(!std::is_constructible_v<RowIndex, ColumnIndex>);
    static_assert(!std::equality_comparable_with<RowIndex, ColumnIndex>);
}

TEST(RowColumnIndexTest, IsTaggedByItsPlaceInTheEnumeration)
{
    using QN::RowOrColumnTag;
    using QN::TaggedValue;
    using QN::TypeUtils::ValueTag;
    static_assert(
        std::is_same_v<RowIndex, TaggedValue<unsigned long, ValueTag<RowOrColumnTag, (RowOrColumnTag)0>>>);
    static_assert(
        std::is_same_v<ColumnIndex, TaggedValue<unsigned long, ValueTag<RowOrColumnTag, (RowOrColumnTag)1>>>);
}

TEST(RowColumnIndexTest, CountsFromZeroOver64Bits)
{
    static_assert(sizeof(RowIndex) == 8 && sizeof(ColumnIndex) == 8);
    EXPECT_EQ(RowIndex(), RowIndex(0));
    EXPECT_EQ(ColumnIndex() + 1, ColumnIndex(1));
}

} // namespace

} // namespace QN::RowColumnIndexTest
