#pragma once

#include <boost/describe/class.hpp>

#include <compare>

namespace QN {

/// Width and height.
template <class T>
class Size2D {
public:
    constexpr Size2D() = default;
    constexpr Size2D(T width, T height) : _width(width), _height(height) {}

    constexpr T getWidth() const { return _width; }
    constexpr void setWidth(T width) { _width = width; }

    constexpr T getHeight() const { return _height; }
    constexpr void setHeight(T height) { _height = height; }

    friend constexpr bool operator==(const Size2D&, const Size2D&) = default;
    friend constexpr auto operator<=>(const Size2D&, const Size2D&) = default;

private:
    T _width{};
    T _height{};

    BOOST_DESCRIBE_CLASS(Size2D, (), (), (), (_width, _height))
};

} // namespace QN
