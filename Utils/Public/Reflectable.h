#pragma once

#include <cstddef>
#include <tuple>
#include <utility>

/// How a class states its bases. A concrete class `D` of a family with root `B` derives from `Reflectable<B>`, a
/// class with two bases from `Reflectable<B1, B2>`. The chain carries no data.

namespace QN {

/// Forwards the constructors of one base.
template <class B>
class BaseInitializer : public B {
public:
    using B::B;
    BaseInitializer() = default;
    explicit BaseInitializer(const B& base) : B(base) {}
    explicit BaseInitializer(B&& base) noexcept : B(std::move(base)) {}
};

template <class... Bs>
class BasesInitializer;

template <>
class BasesInitializer<> {
};

template <class B>
class BasesInitializer<B> : public BaseInitializer<B> {
public:
    using BaseInitializer<B>::BaseInitializer;
    BasesInitializer() = default;
};

template <class B1, class B2>
class BasesInitializer<B1, B2> : public BaseInitializer<B1>, public BaseInitializer<B2> {
public:
    BasesInitializer() = default;

    /// Constructs each base from the arguments in its tuple.
    template <class... Args1, class... Args2>
    BasesInitializer(std::piecewise_construct_t, std::tuple<Args1...> first, std::tuple<Args2...> second)
        : BasesInitializer(first, std::index_sequence_for<Args1...>(), second,
                           std::index_sequence_for<Args2...>())
    {
    }

private:
    template <class First, std::size_t... Indices1, class Second, std::size_t... Indices2>
    BasesInitializer([[maybe_unused]] First& first, std::index_sequence<Indices1...>,
                     [[maybe_unused]] Second& second, std::index_sequence<Indices2...>)
        : BaseInitializer<B1>(std::get<Indices1>(std::move(first))...),
          BaseInitializer<B2>(std::get<Indices2>(std::move(second))...)
    {
    }
};

template <class... Bs>
class Reflectable : public BasesInitializer<Bs...> {
public:
    using BasesInitializer<Bs...>::BasesInitializer;
    Reflectable() = default;
};

} // namespace QN
