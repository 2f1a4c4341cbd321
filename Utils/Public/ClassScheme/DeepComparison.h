#pragma once

#include <compare>
#include <cstddef>
#include <type_traits>
#include <typeinfo>

#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/TypeList.h"
#include "Utils/Public/Visitor.h"

/// Comparison across a polymorphic family. The visitors live on the caller's stack: a comparison allocates nothing.

namespace QN {

/// Compares two objects of one concrete class by its own `==`.
struct AreDeeplyEqualComparator {
    template <class T>
    bool operator()(const T& left, const T& right) const
    {
        return left == right;
    }
};

namespace ComparisonDetails {

/// Compares the visited object with another one of the same dynamic type.
template <class Comparator, class Root, class Types>
class SameHierarchyComparisonVisitor;

template <class Comparator, class Root>
class SameHierarchyComparisonVisitor<Comparator, Root, TypeList<>> : public Root::ConstVisitor {
public:
    explicit SameHierarchyComparisonVisitor(const Root& other) : _other(other) {}
    bool getResult() const { return _result; }

protected:
    const Root& _other;
    bool _result = false;
};

template <class Comparator, class Root, class T, class... Ts>
class SameHierarchyComparisonVisitor<Comparator, Root, TypeList<T, Ts...>>
    : public SameHierarchyComparisonVisitor<Comparator, Root, TypeList<Ts...>> {
    using Next = SameHierarchyComparisonVisitor<Comparator, Root, TypeList<Ts...>>;

public:
    using Next::Next;
    using Next::visit;
    void visit(const T& visited) override
    {
        this->_result = Comparator{}(visited, static_cast<const T&>(this->_other));
    }
};

template <class Root>
bool areDeeplyEqualInFamily(const Root& left, const Root& right)
{
    // One pointer comparison for one type. Two libraries may each have a record of a type, which are told by their texts,
    // but for types that are private to a library.
    if (typeid(left) != typeid(right)) {
        return false;
    }
    SameHierarchyComparisonVisitor<AreDeeplyEqualComparator, Root, typename Root::Types> visitor(right);
    left.accept(visitor);
    return visitor.getResult();
}

template <class T, class... Ts>
constexpr std::size_t indexOf(TypeList<T, Ts...>*, T*)
{
    return 0;
}

template <class T, class Head, class... Ts>
constexpr std::size_t indexOf(TypeList<Head, Ts...>*, T* type)
{
    return 1 + indexOf(static_cast<TypeList<Ts...>*>(nullptr), type);
}

} // namespace ComparisonDetails

/// Orders two objects of a family: first by the place of their types in the family's list, with no look at the values,
/// then by the class's own order.
template <class Types>
struct AreLessVisitor {
    template <class First, class Second>
    std::partial_ordering operator()(const First& first, const Second& second) const
    {
        if constexpr (std::is_same_v<First, Second>) {
            return first.compare(second, nanOrder);
        } else {
            using ComparisonDetails::indexOf;
            constexpr auto firstIndex = indexOf(static_cast<Types*>(nullptr), static_cast<First*>(nullptr));
            constexpr auto secondIndex = indexOf(static_cast<Types*>(nullptr), static_cast<Second*>(nullptr));
            return firstIndex <=> secondIndex;
        }
    }

    NanOrder nanOrder;
};

} // namespace QN

#define QN_DEFINE_DEEP_EQUALITY(Root)                                                                        \
    bool areDeeplyEqual(const Root& left, const Root& right)                                                 \
    {                                                                                                        \
        return ::QN::ComparisonDetails::areDeeplyEqualInFamily(left, right);                                 \
    }

#define QN_DEFINE_DEEP_ORDER(Root)                                                                           \
    std::partial_ordering compareDeeply(const Root& left, const Root& right, ::QN::NanOrder nanOrder)        \
    {                                                                                                        \
        return ::QN::visitBoth<std::partial_ordering>(left, right,                                           \
                                                      ::QN::AreLessVisitor<Root::Types>{nanOrder});          \
    }                                                                                                        \
    bool areDeeplyLess(const Root& left, const Root& right)                                                  \
    {                                                                                                        \
        return compareDeeply(left, right, ::QN::NanOrder::Unordered) < 0;                                    \
    }
