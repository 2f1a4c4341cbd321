#include "Utils/Public/Cinder.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace QN::CinderTest {

namespace {

using Color = cinder::ColorT<unsigned char>;
using ColorA = cinder::ColorAT<unsigned char>;
using Vec2 = cinder::Vec2<float>;
using Vec3 = cinder::Vec3<float>;
using Polygon = cinder::PolyLine<Vec2>;

/// Each value is less than all that follow it.
template <class T>
void expectStrictlyAscending(const std::vector<T>& values)
{
    for (std::size_t left = 0; left < values.size(); ++left) {
        for (std::size_t right = 0; right < values.size(); ++right) {
            EXPECT_EQ(values[left] < values[right], left < right) << left << ", " << right;
            EXPECT_EQ(values[left] == values[right], left == right) << left << ", " << right;
        }
    }
}

TEST(CinderTest, DefaultsAreZero)
{
    EXPECT_EQ(Color(), Color(0, 0, 0));
    EXPECT_EQ(ColorA(), ColorA(0, 0, 0, 0));
    EXPECT_EQ(Vec2(), Vec2(0, 0));
    EXPECT_EQ(Vec3(), Vec3(0, 0, 0));
    EXPECT_TRUE(Polygon().getPoints().empty());
    EXPECT_FALSE(Polygon().isClosed());
}

TEST(CinderTest, ColorIsOneByteAChannel)
{
    static_assert(sizeof(Color) == 3 && sizeof(ColorA) == 4);
    constexpr ColorA Value(1, 2, 3, 255);
    static_assert(Value.r == 1 && Value.g == 2 && Value.b == 3 && Value.a == 255);
}

TEST(CinderTest, ColorsOrderByRedGreenBlueAlpha)
{
    expectStrictlyAscending<Color>({{0, 0, 0}, {0, 0, 255}, {0, 1, 0}, {1, 0, 0}, {128, 0, 0}});
    expectStrictlyAscending<ColorA>(
        {{0, 0, 0, 0}, {0, 0, 0, 255}, {0, 0, 1, 0}, {0, 1, 0, 0}, {1, 0, 0, 0}, {200, 0, 0, 0}});
}

TEST(CinderTest, VectorsOrderByTheirCoordinatesInTurn)
{
    expectStrictlyAscending<Vec2>({{-1, 5}, {0, 0}, {0, 1}, {1, -1}});
    expectStrictlyAscending<Vec3>({{-1, 5, 5}, {0, 0, 0}, {0, 0, 1}, {0, 1, -1}, {1, -1, -1}});
}

TEST(CinderTest, PolygonsOrderByTheirPointsAndOpenBeforeClosed)
{
    expectStrictlyAscending<Polygon>({Polygon(), Polygon({}, true), Polygon({{0, 0}}),
                                      Polygon({{0, 0}}, true), Polygon({{0, 0}, {-1, 0}}), Polygon({{0, 1}}),
                                      Polygon({{1, 0}})});
}

TEST(CinderTest, PolygonCanBeChanged)
{
    Polygon polygon({{1, 2}});
    polygon.getPoints().emplace_back(3.0F, 4.0F);
    polygon.setClosed(true);
    EXPECT_EQ(polygon, Polygon({{1, 2}, {3, 4}}, true));
    EXPECT_EQ(std::as_const(polygon).getPoints(), (std::vector<Vec2>{{1, 2}, {3, 4}}));
}

} // namespace

} // namespace QN::CinderTest
