#pragma once

#include <boost/describe/class.hpp>

#include "Utils/Public/Export.h"
#include "Utils/Public/UUID.h"

namespace QN {

/// The base of what has an identity that is persisted. A copy has the identity of its source.
class DOM_API UUIDable {
public:
    /// A new identity.
    UUIDable();
    explicit UUIDable(const UUID& uuid) : _uuid(uuid) {}
    UUIDable(const UUIDable&) = default;
    UUIDable(UUIDable&&) noexcept = default;
    UUIDable& operator=(const UUIDable&) = default;
    UUIDable& operator=(UUIDable&&) noexcept = default;
    virtual ~UUIDable();

    const UUID& getUUID() const { return _uuid; }
    void setUUID(const UUID& uuid) { _uuid = uuid; }

    friend bool operator==(const UUIDable& left, const UUIDable& right) { return left._uuid == right._uuid; }

    void serialize(cereal::JSONOutputArchive& archive) const;
    void serialize(cereal::JSONInputArchive& archive);

private:
    UUID _uuid;

    BOOST_DESCRIBE_CLASS(UUIDable, (), (), (), (_uuid))
};

} // namespace QN
