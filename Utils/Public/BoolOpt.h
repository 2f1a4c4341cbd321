#pragma once

#include <boost/none.hpp>

#include <compare>
#include <concepts>

namespace QN {

/// A boolean of three states in one byte: unset, true, false.
/// As a condition it tells whether it is set, so that a set `false` is true in an `if`; the value itself is `*flag`.
class BoolOpt {
public:
    constexpr BoolOpt() = default;
    constexpr BoolOpt(boost::none_t) {}

    /// Takes exactly `bool`: a pointer or a number does not become a flag.
    template <std::same_as<bool> Bool>
    constexpr BoolOpt(Bool value) : _state(value ? State::True : State::False)
    {
    }

    constexpr explicit operator bool() const { return _state != State::Unset; }
    constexpr bool operator!() const { return _state == State::Unset; }

    /// Meaningful only when set.
    constexpr bool operator*() const { return _state == State::True; }
    constexpr bool value_or(bool fallback) const { return _state == State::Unset ? fallback : **this; }

    friend constexpr bool operator==(const BoolOpt&, const BoolOpt&) = default;

    /// Unset, then false, then true.
    friend constexpr std::strong_ordering operator<=>(const BoolOpt&, const BoolOpt&) = default;

private:
    enum class State : signed char { Unset = -1, False = 0, True = 1 };

    State _state = State::Unset;
};

} // namespace QN
