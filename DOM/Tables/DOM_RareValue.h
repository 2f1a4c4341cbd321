#pragma once

#include <memory>
#include <utility>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN {

template <class T>
struct Persist;

namespace DOM {

/// A value that nearly always equals its default: it costs one pointer then, and an allocation only where it differs.
/// It is compared, copied and persisted as the value itself.
template <class T>
class RareValue {
public:
    RareValue() = default;
    RareValue(const RareValue& other) : _value(other._value ? std::make_unique<T>(*other._value) : nullptr) {}
    RareValue(RareValue&&) noexcept = default;
    RareValue& operator=(const RareValue& other) { return *this = RareValue(other); }
    RareValue& operator=(RareValue&&) noexcept = default;
    ~RareValue() = default;

    /// Valid until the next change.
    const T& get() const { return _value ? *_value : getDefault(); }

    /// To be changed in place: makes the allocation, whether or not the value then differs from the default. Valid until
    /// the next `set`.
    T& edit()
    {
        if (!_value) {
            _value = std::make_unique<T>();
        }
        return *_value;
    }

    void set(T value) { _value = value == getDefault() ? nullptr : std::make_unique<T>(std::move(value)); }

    friend bool operator==(const RareValue& left, const RareValue& right)
    {
        return left.get() == right.get();
    }

private:
    static const T& getDefault()
    {
        static const T value{};
        return value;
    }

    std::unique_ptr<T> _value;
};

} // namespace DOM

template <class T>
struct Persist<DOM::RareValue<T>> {
    static void save(cereal::JSONOutputArchive& archive, const DOM::RareValue<T>& value)
    {
        Persist<T>::save(archive, value.get());
    }

    static void load(cereal::JSONInputArchive& archive, DOM::RareValue<T>& value)
    {
        T loaded{};
        Persist<T>::load(archive, loaded);
        value.set(std::move(loaded));
    }
};

} // namespace QN
