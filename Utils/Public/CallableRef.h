#pragma once

#include <concepts>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

namespace QN {

template <class Signature>
class CallableRef;

namespace detail {

/// Whether a result of a call can be handed on as `Result` without a reference to a temporary.
template <class Result, class Returned>
concept OutlivesItsCall =
    !std::is_reference_v<Result> ||
    (std::is_reference_v<Returned> &&
     std::convertible_to<std::remove_reference_t<Returned>*, std::remove_reference_t<Result>*>);

} // namespace detail

/// Refers to a callable without owning it and without an allocation: how an operation takes a callback. The callable
/// must outlive the call that receives it; a plain function is referred to for good. A callable whose result would be a
/// temporary is not taken where the signature gives a reference.
template <class Result, class... Args>
class CallableRef<Result(Args...)> {
public:
    template <class Callable>
    requires(!std::same_as<std::remove_cvref_t<Callable>, CallableRef> &&
             std::is_invocable_r_v<Result, Callable&, Args...> &&
             detail::OutlivesItsCall<Result, std::invoke_result_t<Callable&, Args...>>)
        CallableRef(Callable&& callable)
    {
        using Stored = std::remove_reference_t<Callable>;
        if constexpr (std::is_function_v<std::remove_pointer_t<Stored>>) {
            _context.function = reinterpret_cast<void (*)()>(static_cast<std::decay_t<Stored>>(callable));
            _call = [](Context context, Args... args) -> Result {
                auto* const called = reinterpret_cast<std::decay_t<Stored>>(context.function);
                return static_cast<Result>(called(std::forward<Args>(args)...));
            };
        } else {
            _context.object = std::addressof(callable);
            _call = [](Context context, Args... args) -> Result {
                auto& called = *static_cast<Stored*>(const_cast<void*>(context.object));
                return static_cast<Result>(std::invoke(called, std::forward<Args>(args)...));
            };
        }
    }

    Result operator()(Args... args) const { return _call(_context, std::forward<Args>(args)...); }

private:
    union Context {
        const void* object;
        void (*function)();
    };

    Context _context;
    Result (*_call)(Context, Args...);
};

} // namespace QN
