#pragma once

#include <boost/utility/string_ref.hpp>

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "Utils/Public/BaseRuntimeError.h"
#include "Utils/Public/Export.h"

namespace cereal {
class JSONInputArchive;
class JSONOutputArchive;
} // namespace cereal

namespace QN {

/// A text that is no UUID. The message quotes it.
class DOM_API BadUUIDError : public BaseRuntimeError {
public:
    using BaseRuntimeError::BaseRuntimeError;
};

/// A universally unique identifier of 128 bits (RFC 4122).
class DOM_API UUID {
public:
    /// The nil value.
    constexpr UUID() = default;

    /// Parses the 36 characters of "219be34f-66e7-4590-8db5-375443207e49", in hexadecimal digits of either case.
    /// Throws `BadUUIDError` on anything else.
    explicit UUID(boost::string_ref text);

    /// A new random value, never nil.
    static UUID generate();

    /// Derives a value from two: the same for the same operands in the same order, and another one where either
    /// operand is another.
    UUID combine(const UUID& other) const;

    constexpr explicit operator bool() const { return _high != 0 || _low != 0; }

    /// The canonical form, in lower case.
    std::string toString() const;

    friend constexpr bool operator==(const UUID&, const UUID&) = default;

    /// The order of the canonical texts.
    friend constexpr std::strong_ordering operator<=>(const UUID&, const UUID&) = default;

    /// Without the seed nobody can tell which values have the same hash: see `SeededHash`.
    std::size_t getHash(std::uint64_t seed) const;

    friend std::size_t hash_value(const UUID& uuid)
    {
        return static_cast<std::size_t>(uuid._low ^ (uuid._high * 0x9e3779b97f4a7c15U));
    }

    void serialize(cereal::JSONOutputArchive& archive) const;
    void serialize(cereal::JSONInputArchive& archive);

private:
    constexpr UUID(std::uint64_t high, std::uint64_t low) : _high(high), _low(low) {}

    std::uint64_t _high = 0;
    std::uint64_t _low = 0;
};

} // namespace QN

template <>
struct std::hash<QN::UUID> {
    std::size_t operator()(const QN::UUID& uuid) const { return hash_value(uuid); }
};
