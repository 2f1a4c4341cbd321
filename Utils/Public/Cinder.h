#pragma once

#include <compare>
#include <utility>
#include <vector>

/// Colours, vectors and polygons as plain data.

namespace cinder {

/// A colour of three channels.
template <class T>
struct ColorT {
    constexpr ColorT() = default;
    constexpr ColorT(T red, T green, T blue) : r(red), g(green), b(blue) {}

    friend constexpr bool operator==(const ColorT&, const ColorT&) = default;
    friend constexpr auto operator<=>(const ColorT&, const ColorT&) = default;

    T r{};
    T g{};
    T b{};
};

/// A colour of three channels and its opacity.
template <class T>
struct ColorAT {
    constexpr ColorAT() = default;
    constexpr ColorAT(T red, T green, T blue, T alpha) : r(red), g(green), b(blue), a(alpha) {}

    friend constexpr bool operator==(const ColorAT&, const ColorAT&) = default;
    friend constexpr auto operator<=>(const ColorAT&, const ColorAT&) = default;

    T r{};
    T g{};
    T b{};
    T a{};
};

template <class T>
struct Vec2 {
    constexpr Vec2() = default;
    constexpr Vec2(T first, T second) : x(first), y(second) {}

    friend constexpr bool operator==(const Vec2&, const Vec2&) = default;
    friend constexpr auto operator<=>(const Vec2&, const Vec2&) = default;

    T x{};
    T y{};
};

template <class T>
struct Vec3 {
    constexpr Vec3() = default;
    constexpr Vec3(T first, T second, T third) : x(first), y(second), z(third) {}

    friend constexpr bool operator==(const Vec3&, const Vec3&) = default;
    friend constexpr auto operator<=>(const Vec3&, const Vec3&) = default;

    T x{};
    T y{};
    T z{};
};

/// Points joined by lines, and whether a line joins the last to the first. Ordered by the points, then open before
/// closed.
template <class Point>
class PolyLine {
public:
    PolyLine() = default;
    explicit PolyLine(std::vector<Point> points, bool closed = false)
        : _points(std::move(points)), _closed(closed)
    {
    }

    const std::vector<Point>& getPoints() const { return _points; }
    std::vector<Point>& getPoints() { return _points; }

    bool isClosed() const { return _closed; }
    void setClosed(bool closed) { _closed = closed; }

    friend bool operator==(const PolyLine&, const PolyLine&) = default;
    friend auto operator<=>(const PolyLine&, const PolyLine&) = default;

private:
    std::vector<Point> _points;
    bool _closed = false;
};

} // namespace cinder
