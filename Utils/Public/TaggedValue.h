#pragma once

#include <compare>
#include <concepts>
#include <cstddef>
#include <functional>
#include <type_traits>
#include <utility>

namespace QN {

namespace TypeUtils {

/// A tag that is a value of an enumeration.
template <class T, T value>
struct ValueTag {
};

} // namespace TypeUtils

namespace TaggedValueDetails {

template <class T>
concept Number = std::is_arithmetic_v<T> && !std::same_as<T, bool>;

template <class T>
concept LessComparable = !std::three_way_comparable<T> && requires(const T& left, const T& right)
{
    {
        left < right
        } -> std::convertible_to<bool>;
};

template <class T>
concept Hashable = requires(const T& value)
{
    {
        std::hash<T>{}(value)
        } -> std::convertible_to<std::size_t>;
};

} // namespace TaggedValueDetails

/// A strong type over a plain one: values of different tags neither convert to each other nor compare. It has the size
/// of the value, and of its operations those that the value has: comparison, order, hash, and arithmetic for numbers,
/// which wraps and narrows as that of the number itself does.
template <class T, class Tag>
class TaggedValue {
public:
    using ValueType = T;

    constexpr TaggedValue() = default;
    constexpr explicit TaggedValue(T value) noexcept(std::is_nothrow_move_constructible_v<T>)
        : _value(std::move(value))
    {
    }

    constexpr const T& get() const& { return _value; }
    constexpr T& get() & { return _value; }
    constexpr T get() && { return std::move(_value); }

    constexpr void set(T value) { _value = std::move(value); }

    friend constexpr bool operator==(const TaggedValue& left,
                                     const TaggedValue& right) requires std::equality_comparable<T>
    {
        return left._value == right._value;
    }

    friend constexpr auto operator<=>(const TaggedValue& left,
                                      const TaggedValue& right) requires std::three_way_comparable<T>
    {
        return left._value <=> right._value;
    }

    friend constexpr std::weak_ordering
    operator<=>(const TaggedValue& left,
                const TaggedValue& right) requires TaggedValueDetails::LessComparable<T>
    {
        if (left._value < right._value) {
            return std::weak_ordering::less;
        }
        return right._value < left._value ? std::weak_ordering::greater : std::weak_ordering::equivalent;
    }

    constexpr TaggedValue& operator+=(T value) requires TaggedValueDetails::Number<T>
    {
        _value = static_cast<T>(_value + value);
        return *this;
    }

    constexpr TaggedValue& operator-=(T value) requires TaggedValueDetails::Number<T>
    {
        _value = static_cast<T>(_value - value);
        return *this;
    }

    constexpr TaggedValue& operator+=(const TaggedValue& other) requires TaggedValueDetails::Number<T>
    {
        return *this += other._value;
    }

    constexpr TaggedValue& operator-=(const TaggedValue& other) requires TaggedValueDetails::Number<T>
    {
        return *this -= other._value;
    }

    constexpr TaggedValue& operator++() requires TaggedValueDetails::Number<T>
    {
        ++_value;
        return *this;
    }

    constexpr TaggedValue& operator--() requires TaggedValueDetails::Number<T>
    {
        --_value;
        return *this;
    }

    constexpr TaggedValue operator++(int) requires TaggedValueDetails::Number<T>
    {
        const TaggedValue before = *this;
        ++_value;
        return before;
    }

    constexpr TaggedValue operator--(int) requires TaggedValueDetails::Number<T>
    {
        const TaggedValue before = *this;
        --_value;
        return before;
    }

    friend constexpr TaggedValue operator+(TaggedValue left,
                                           const TaggedValue& right) requires TaggedValueDetails::Number<T>
    {
        return left += right;
    }

    friend constexpr TaggedValue operator+(TaggedValue left, T right) requires TaggedValueDetails::Number<T>
    {
        return left += right;
    }

    friend constexpr TaggedValue operator-(TaggedValue left,
                                           const TaggedValue& right) requires TaggedValueDetails::Number<T>
    {
        return left -= right;
    }

    friend constexpr TaggedValue operator-(TaggedValue left, T right) requires TaggedValueDetails::Number<T>
    {
        return left -= right;
    }

    friend std::size_t hash_value(const TaggedValue& value) requires TaggedValueDetails::Hashable<T>
    {
        return std::hash<T>{}(value._value);
    }

private:
    T _value{};
};

} // namespace QN

template <class T, class Tag>
requires QN::TaggedValueDetails::Hashable<T>
struct std::hash<QN::TaggedValue<T, Tag>> {
    std::size_t operator()(const QN::TaggedValue<T, Tag>& value) const { return hash_value(value); }
};
