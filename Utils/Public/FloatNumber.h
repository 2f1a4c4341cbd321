#pragma once

#include <cmath>
#include <compare>

namespace QN {

/// A number that is meant to be finite. It takes any value: whoever stores one checks it with `isfinite`.
class FloatNumber {
public:
    constexpr FloatNumber() = default;
    constexpr explicit FloatNumber(double value) : _value(value) {}

    constexpr double get() const { return _value; }

    friend constexpr bool operator==(const FloatNumber&, const FloatNumber&) = default;
    friend constexpr std::partial_ordering operator<=>(const FloatNumber&, const FloatNumber&) = default;

private:
    double _value = 0.0;
};

inline bool isfinite(FloatNumber number)
{
    return std::isfinite(number.get());
}

} // namespace QN
