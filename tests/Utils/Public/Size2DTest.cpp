#include "Utils/Public/Size2D.h"

#include <gtest/gtest.h>

#include <limits>

namespace QN::Size2DTest {

namespace {

template <class T>
class Size2DTest : public testing::Test {
};

using Units = testing::Types<float, unsigned int, unsigned long>;
TYPED_TEST_SUITE(Size2DTest, Units);

TYPED_TEST(Size2DTest, DefaultIsZeroByZero)
{
    const QN::Size2D<TypeParam> size;
    EXPECT_EQ(size.getWidth(), TypeParam{0});
    EXPECT_EQ(size.getHeight(), TypeParam{0});
}

TYPED_TEST(Size2DTest, TakesWidthBeforeHeight)
{
    QN::Size2D<TypeParam> size(3, 4);
    EXPECT_EQ(size.getWidth(), TypeParam{3});
    EXPECT_EQ(size.getHeight(), TypeParam{4});
    size.setWidth(5);
    size.setHeight(6);
    EXPECT_EQ(size, QN::Size2D<TypeParam>(5, 6));
}

TYPED_TEST(Size2DTest, ComparesWidthBeforeHeight)
{
    using Size = QN::Size2D<TypeParam>;
    EXPECT_EQ(Size(1, 2), Size(1, 2));
    EXPECT_NE(Size(1, 2), Size(2, 1));
    EXPECT_NE(Size(1, 2), Size(1, 3));
    EXPECT_LT(Size(1, 9), Size(2, 0));
    EXPECT_LT(Size(1, 2), Size(1, 3));
    EXPECT_FALSE(Size(1, 2) < Size(1, 2));
}

TEST(Size2DFloatTest, NotANumberDiffersFromItself)
{
    const QN::Size2D<float> size(std::numeric_limits<float>::quiet_NaN(), 1.0F);
    EXPECT_FALSE(size == size);
    EXPECT_FALSE(size < size);
}

} // namespace

} // namespace QN::Size2DTest
