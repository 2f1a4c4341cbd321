#pragma once

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
class BasesInitializer<> {};

template <class B>
class BasesInitializer<B> : public BaseInitializer<B> {
public:
    using BaseInitializer<B>::BaseInitializer;
    BasesInitializer() = default;
};

template <class B1, class B2>
class BasesInitializer<B1, B2> : public BaseInitializer<B1>, public BaseInitializer<B2> {};

template <class... Bs>
class Reflectable : public BasesInitializer<Bs...> {
public:
    using BasesInitializer<Bs...>::BasesInitializer;
    Reflectable() = default;
};

} // namespace QN
