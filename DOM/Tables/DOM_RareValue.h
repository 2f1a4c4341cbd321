#pragma once

#include <memory>
#include <utility>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

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

    /// Valid until the next `set`.
    const T& get() const { return _value ? *_value : getDefault(); }

    void set(const T& value) { _value = value == getDefault() ? nullptr : std::make_unique<T>(value); }

    friend bool operator==(const RareValue& left, const RareValue& right)
    {
        return left.get() == right.get();
    }

    void serialize(cereal::JSONOutputArchive& archive) const { get().serialize(archive); }
    void serialize(cereal::JSONInputArchive& archive)
    {
        T value;
        value.serialize(archive);
        set(value);
    }

private:
    static const T& getDefault()
    {
        static const T value{};
        return value;
    }

    std::unique_ptr<T> _value;
};

} // namespace QN::DOM
