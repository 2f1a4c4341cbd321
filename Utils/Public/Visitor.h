#pragma once

#include <boost/optional/optional.hpp>

#include <type_traits>
#include <utility>

#include "Utils/Public/Assert.h"
#include "Utils/Public/TypeList.h"

namespace QN {

namespace VisitDetails {

template <class Types>
struct Constant;

template <class... Ts>
struct Constant<TypeList<Ts...>> {
    using type = TypeList<const Ts...>;
};

} // namespace VisitDetails

template <class Types>
using ConstTypes = typename VisitDetails::Constant<Types>::type;

/// The abstract visitor of a family: one pure virtual `visit` for each type of the list.
template <class Types>
class Visitor;

template <>
class Visitor<TypeList<>> {
public:
    virtual ~Visitor() = default;
    void visit() = delete;
};

template <class T, class... Ts>
class Visitor<TypeList<T, Ts...>> : public Visitor<TypeList<Ts...>> {
public:
    using Visitor<TypeList<Ts...>>::visit;
    virtual void visit(T& visited) = 0;
};

namespace VisitDetails {

/// Adapts a functor to a family's visitor, link by link of its type list. The functor is referred to, not owned.
template <class Visited, class StaticVisitor, class Result, class Types, class Rest>
class HelperLink;

template <class Visited, class StaticVisitor, class Result, class Types>
class HelperLink<Visited, StaticVisitor, Result, Types, TypeList<>> : public Visitor<Types> {
public:
    explicit HelperLink(StaticVisitor* functor) : staticVisitor(functor) {}

    /// The stored result; `accept` must have called a `visit`.
    Result takeResult()
    {
        QN_CONTRACT(result, "Utils/Public/Visitor", 194, "result");
        return std::move(*result);
    }

protected:
    template <class T>
    void call(T& visited)
    {
        QN_CONTRACT(this->staticVisitor, "Utils/Public/Visitor", 188, "this->staticVisitor");
        if constexpr (std::is_invocable_v<StaticVisitor&, T&>) {
            result = (*this->staticVisitor)(visited);
        }
    }

    StaticVisitor* staticVisitor;
    boost::optional<Result> result;
};

template <class Visited, class StaticVisitor, class Types>
class HelperLink<Visited, StaticVisitor, void, Types, TypeList<>> : public Visitor<Types> {
public:
    explicit HelperLink(StaticVisitor* functor) : staticVisitor(functor) {}

protected:
    template <class T>
    void call(T& visited)
    {
        QN_CONTRACT(this->staticVisitor, "Utils/Public/Visitor", 219, "this->staticVisitor");
        if constexpr (std::is_invocable_v<StaticVisitor&, T&>) {
            (*this->staticVisitor)(visited);
        }
    }

    StaticVisitor* staticVisitor;
};

template <class Visited, class StaticVisitor, class Result, class Types, class T, class... Ts>
class HelperLink<Visited, StaticVisitor, Result, Types, TypeList<T, Ts...>>
    : public HelperLink<Visited, StaticVisitor, Result, Types, TypeList<Ts...>> {
    using Next = HelperLink<Visited, StaticVisitor, Result, Types, TypeList<Ts...>>;

public:
    using Next::Next;
    using Next::visit;
    void visit(T& visited) override { this->template call<T>(visited); }
};

template <class Visited>
using TypesOf =
    std::conditional_t<std::is_const_v<Visited>, ConstTypes<typename std::remove_const_t<Visited>::Types>,
                       typename std::remove_const_t<Visited>::Types>;

/// A visitor over the family of `Visited` that calls the functor with the concrete object. A functor that does not
/// take some class leaves the visit without a result.
template <class Visited, class StaticVisitor, class Result>
class Helper final : public HelperLink<Visited, StaticVisitor, Result, TypesOf<Visited>, TypesOf<Visited>> {
public:
    using HelperLink<Visited, StaticVisitor, Result, TypesOf<Visited>, TypesOf<Visited>>::HelperLink;
};

} // namespace VisitDetails

/// Calls `functor` with the dynamic type of `visited` and returns what it answers. A functor that takes no object of
/// that type fails the contract "result", unless `Result` is void.
template <class Result, class Visited, class StaticVisitor>
Result visit(Visited& visited, StaticVisitor&& functor)
{
    VisitDetails::Helper<Visited, std::remove_reference_t<StaticVisitor>, Result> helper(&functor);
    visited.accept(helper);
    if constexpr (!std::is_void_v<Result>) {
        return helper.takeResult();
    }
}

namespace MultiVisitDetails {

/// Holds the concrete second operand and is run on the first.
template <class Functors, class Second, class Result>
struct TailVisitor {
    template <class First>
    Result operator()(const First& first) const
    {
        QN_CONTRACT(this->functors, "Utils/Public/Visitor", 404, "this->functors");
        return (*this->functors)(first, second);
    }

    const Functors* functors;
    const Second& second;
};

/// Is run on the second operand, then dispatches the first.
template <class Functors, class Root, class Result>
struct HeadVisitor {
    template <class Second>
    Result operator()(const Second& second) const
    {
        return ::QN::visit<Result>(first, TailVisitor<Functors, Second, Result>{functors, second});
    }

    const Functors* functors;
    const Root& first;
};

} // namespace MultiVisitDetails

/// Calls `functors(first, second)` with the dynamic types of both.
template <class Result, class Root, class Functors>
Result visitBoth(const Root& first, const Root& second, const Functors& functors)
{
    return visit<Result>(second, MultiVisitDetails::HeadVisitor<Functors, Root, Result>{&functors, first});
}

} // namespace QN
