#include "Utils/Public/TypeList.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace QN::TypeListTest {

namespace {

using QN::QNDummy;
using QN::TypeList;

TEST(TypeListTest, ListsDifferByTheirTypesAndTheirOrder)
{
    static_assert(std::is_same_v<TypeList<int, QNDummy>, TypeList<int, QNDummy>>);
    static_assert(!std::is_same_v<TypeList<int, QNDummy>, TypeList<QNDummy, int>>);
    static_assert(!std::is_same_v<TypeList<int>, TypeList<>>);
}

TEST(TypeListTest, ListOfIncompleteTypesIsAValue)
{
    struct Incomplete;
    static_assert(std::is_empty_v<TypeList<Incomplete>>);
    static_assert(std::is_empty_v<QNDummy>);
}

} // namespace

} // namespace QN::TypeListTest
