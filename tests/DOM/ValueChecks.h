#pragma once

#include <gtest/gtest.h>

#include <compare>
#include <initializer_list>
#include <type_traits>
#include <utility>

#include "Utils/Public/ClassScheme/Declare.h"

/// What every value of the model goes through in its tests, besides being saved and loaded.

namespace QN::Test {

/// The JSON text of an absent optional.
inline constexpr const char* AbsentJson = R"({"hasValue":false})";

/// A copy, also where one is not needed but to be looked at.
template <class T>
T makeCopy(const T& value)
{
    return value;
}

/// Copies, moves, assigns and self-assigns a value. Neither moves nor the destructor may throw.
template <class T>
void expectCopiesAndMoves(const T& value)
{
    static_assert(std::is_nothrow_move_constructible_v<T>);
    static_assert(std::is_nothrow_move_assignable_v<T>);
    static_assert(std::is_nothrow_destructible_v<T>);

    T copy(value);
    EXPECT_TRUE(copy == value);
    T assigned;
    assigned = value;
    EXPECT_TRUE(assigned == value);
    const T& itself = assigned;
    assigned = itself;
    EXPECT_TRUE(assigned == value);

    T moved(std::move(copy));
    EXPECT_TRUE(moved == value);
    assigned = T();
    assigned = std::move(moved);
    EXPECT_TRUE(assigned == value);
    copy = value;
    EXPECT_TRUE(copy == value);
}

/// Each value is less than all behind it, by all six operators and both orders of a NaN.
template <class T>
void expectAscending(std::initializer_list<T> values)
{
    for (auto left = values.begin(); left != values.end(); ++left) {
        for (auto right = values.begin(); right != values.end(); ++right) {
            const auto leftIndex = left - values.begin();
            const auto rightIndex = right - values.begin();
            const std::strong_ordering order = leftIndex <=> rightIndex;
            EXPECT_EQ(*left < *right, order < 0) << leftIndex << " and " << rightIndex;
            EXPECT_EQ(*left <= *right, order <= 0) << leftIndex << " and " << rightIndex;
            EXPECT_EQ(*left > *right, order > 0) << leftIndex << " and " << rightIndex;
            EXPECT_EQ(*left >= *right, order >= 0) << leftIndex << " and " << rightIndex;
            EXPECT_EQ(*left == *right, order == 0) << leftIndex << " and " << rightIndex;
            EXPECT_EQ(*left != *right, order != 0) << leftIndex << " and " << rightIndex;
            EXPECT_TRUE(left->compare(*right, NanOrder::Last) == order) << leftIndex << " and " << rightIndex;
        }
    }
}

template <class T>
concept Ordered = requires(const T& value)
{
    value < value;
};

} // namespace QN::Test
