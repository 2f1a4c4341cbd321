#pragma once

#include <cstddef>
#include <string>

#include "Utils/Public/Clonable.h"
#include "Utils/Public/Export.h"
#include "Utils/Public/UUID.h"
#include "Utils/Public/Visitor.h"

namespace QN::NodeAddressing {

template <class T>
class SimpleValueMapKey;

/// The key by which a step of a node address finds an element of a map, whatever the type of the map's keys. Keys are
/// visited for their value, and never persisted.
class DOM_API MapKey : public Clonable<MapKey> {
public:
    using Types = TypeList<SimpleValueMapKey<UUID>, SimpleValueMapKey<std::string>>;
    QN_FAMILY_ROOT(MapKey)

    /// The same for equal keys.
    virtual std::size_t getHash() const = 0;

    /// A UUID in its canonical form, a name in double quotes and otherwise as it stands.
    virtual std::string toString() const = 0;
};

/// Keys of different types are unequal.
DOM_API bool areDeeplyEqual(const MapKey& left, const MapKey& right);

} // namespace QN::NodeAddressing
