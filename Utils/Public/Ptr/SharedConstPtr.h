#pragma once

#include <concepts>
#include <cstddef>
#include <memory>
#include <utility>

#include "Utils/Public/Ptr/PtrUtils.h"

namespace QN {

/// Shares an object that nobody changes any more, and gives const access only.
/// Dereferencing null fails the contract "plainPtr".
template <class T>
class SharedConstPtr {
public:
    using element_type = const T;

    SharedConstPtr() = default;
    SharedConstPtr(std::nullptr_t) {}

    /// From any shared or unique pointer to `T` or to a class derived from it.
    template <std::convertible_to<std::shared_ptr<const T>> OtherPtr>
    SharedConstPtr(OtherPtr ptr) : _value(std::move(ptr))
    {
    }

    const T* get() const { return _value.get(); }
    const T& operator*() const { return derefRequired(get()); }
    const T* operator->() const { return checkedDeref(get()); }

    explicit operator bool() const { return static_cast<bool>(_value); }
    friend bool operator==(const SharedConstPtr& ptr, std::nullptr_t) { return !ptr._value; }

    const std::shared_ptr<const T>& getPtr() const { return _value; }

    void reset(std::shared_ptr<const T> ptr = nullptr) { _value = std::move(ptr); }

private:
    std::shared_ptr<const T> _value;
};

} // namespace QN
