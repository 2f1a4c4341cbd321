#pragma once

#include <concepts>
#include <cstddef>
#include <type_traits>
#include <utility>

#include "Utils/Public/Ptr/PtrUtils.h"

namespace QN {

/// Owns a smart pointer and hands its own constness on to the pointee: a const holder gives access to a const object.
/// Dereferencing null fails the contract "plainPtr".
template <class P>
class PropagateConstPtr {
public:
    using element_type = typename P::element_type;

    PropagateConstPtr() = default;
    PropagateConstPtr(std::nullptr_t) {}

    /// From the wrapped smart pointer, or one that converts to it.
    template <std::convertible_to<P> OtherPtr>
    PropagateConstPtr(OtherPtr ptr) : _ptr(std::move(ptr))
    {
    }

    element_type* get() { return _ptr.get(); }
    const element_type* get() const { return _ptr.get(); }

    element_type& operator*() { return derefRequired(get()); }
    const element_type& operator*() const { return derefRequired(get()); }

    element_type* operator->() { return checkedDeref(get()); }
    const element_type* operator->() const { return checkedDeref(get()); }

    explicit operator bool() const { return static_cast<bool>(_ptr); }
    friend bool operator==(const PropagateConstPtr& ptr, std::nullptr_t) { return !ptr._ptr; }

    P& getPtr() { return _ptr; }
    /// The wrapped pointer as it is, for copying and saving: constness ends here.
    const P& getPtr() const { return _ptr; }

    void reset(P ptr = P{}) { _ptr = std::move(ptr); }

private:
    P _ptr{};
};

} // namespace QN
