#pragma once

#include <cstddef>

#include "Utils/Public/Assert.h"

namespace QN {

/// Refers to an object that somebody else owns. Dereferencing null fails the contract "_ptr".
template <class T>
class CheckedPtr {
public:
    constexpr CheckedPtr() = default;
    constexpr CheckedPtr(std::nullptr_t) {}
    constexpr CheckedPtr(T* ptr) : _ptr(ptr) {}

    constexpr T* get() const { return _ptr; }
    constexpr T& operator*() const { return *checked(); }
    constexpr T* operator->() const { return checked(); }

    constexpr explicit operator bool() const { return _ptr != nullptr; }
    friend constexpr bool operator==(const CheckedPtr&, const CheckedPtr&) = default;

private:
    constexpr T* checked() const
    {
        QN_CONTRACT(_ptr, "Utils/Public/Ptr/CheckedPtr", 206, "_ptr");
        return _ptr;
    }

    T* _ptr = nullptr;
};

} // namespace QN
