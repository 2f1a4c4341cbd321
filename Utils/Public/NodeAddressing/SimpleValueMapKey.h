#pragma once

#include <memory>
#include <string>
#include <utility>

#include "Utils/Public/NodeAddressing/MapKey.h"
#include "Utils/Public/Reflectable.h"

namespace QN::NodeAddressing {

/// A key that holds one value. There are two kinds: the `UUID` of an element, and the text of a name.
template <class T>
class DOM_API SimpleValueMapKey final : public Reflectable<MapKey> {
public:
    SimpleValueMapKey() = default;
    explicit SimpleValueMapKey(T value) : _value(std::move(value)) {}

    const T& getValue() const { return _value; }
    void setValue(T value) { _value = std::move(value); }

    /// The `hash_value` of the value.
    std::size_t getHash() const override;
    std::string toString() const override;

    bool operator==(const SimpleValueMapKey& other) const { return _value == other._value; }

    QN_CONCRETE(MapKey)

private:
    T _value{};
};

extern template class DOM_API SimpleValueMapKey<UUID>;
extern template class DOM_API SimpleValueMapKey<std::string>;

} // namespace QN::NodeAddressing
