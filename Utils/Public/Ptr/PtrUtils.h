#pragma once

#include <type_traits>

#include "Utils/Public/Assert.h"

namespace QN {

namespace PtrUtilsDetails {

template <class T>
T* getPlain(T* ptr)
{
    return ptr;
}

template <class Ptr>
auto* getPlain(const Ptr& ptr)
{
    return ptr.get();
}

} // namespace PtrUtilsDetails

/// The pointee's address, of a raw or smart pointer that must be set. Null fails the contract "plainPtr".
template <class Ptr>
auto* checkedDeref(const Ptr& ptr)
{
    auto* const plainPtr = PtrUtilsDetails::getPlain(ptr);
    constexpr int Line = std::is_const_v<std::remove_pointer_t<decltype(plainPtr)>> ? 254 : 246;
    QN_CONTRACT(plainPtr, "Utils/Public/Ptr/PtrUtils", Line, "plainPtr");
    return plainPtr;
}

/// The pointee of a raw or smart pointer that must be set. Null fails the contract "plainPtr".
template <class Ptr>
auto& derefRequired(const Ptr& ptr)
{
    return *checkedDeref(ptr);
}

} // namespace QN
