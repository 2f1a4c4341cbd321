#include "Utils/Public/VectorUtils.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>
#include <vector>

namespace QN::VectorUtilsTest {

namespace {

TEST(VectorUtilsTest, PlaceIsThatOfTheElement)
{
    std::vector<int> numbers{3, 1, 2};
    *iteratorAt(numbers, 1) = 7;
    EXPECT_EQ(numbers, (std::vector<int>{3, 7, 2}));
    EXPECT_EQ(iteratorAt(numbers, 0), numbers.begin());
    numbers.insert(iteratorAt(numbers, 3), 9);
    EXPECT_EQ(numbers.back(), 9);
}

TEST(VectorUtilsTest, PlaceBehindTheLastElementIsTheEnd)
{
    std::vector<int> numbers{3, 1, 2};
    EXPECT_EQ(iteratorAt(numbers, 3), numbers.end());
    numbers.clear();
    EXPECT_EQ(iteratorAt(numbers, 0), numbers.end());
}

TEST(VectorUtilsTest, ConstVectorGivesAConstIterator)
{
    const std::vector<int> numbers{3, 1, 2};
    EXPECT_EQ(*iteratorAt(numbers, 2), 2);
    static_assert(std::is_same_v<decltype(iteratorAt(numbers, 2)), std::vector<int>::const_iterator>);
}

} // namespace

} // namespace QN::VectorUtilsTest
