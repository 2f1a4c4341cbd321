#pragma once

#include <cstdint>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// A distance from Coordinated Universal Time, in the unit of whoever makes it: the model stores and compares it.
class DOM_API TimeZone {
public:
    TimeZone() = default;
    explicit TimeZone(std::int32_t offset) : _offset(offset) {}
    static TimeZone getUTCTimeZone() { return TimeZone(0); }

    std::int32_t getOffset() const { return _offset; }
    void setOffset(std::int32_t offset) { _offset = offset; }

    QN_ORDERED_VALUE(TimeZone)

private:
    std::int32_t _offset = 0;

    BOOST_DESCRIBE_CLASS(TimeZone, (), (), (), (_offset))
};

} // namespace QN::DOM
