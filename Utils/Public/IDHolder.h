#pragma once

#include <cstdint>

#include "Utils/Public/Export.h"

namespace QN {

/// The base of what has an identity for the run of the process only. A copy, and an object moved to, share the token
/// of their source, which keeps it; an object made anew has one of its own.
class DOM_API IDHolder {
public:
    IDHolder() : _impl(makeImpl()) {}

    std::uint64_t getID() const { return _impl.token; }

private:
    // The token is a number and no shared allocation: a document holds one for each of its paragraphs, and 64 bits of
    // one relaxed atomic counter are unique for the life of a process at 8 bytes each and a copy without a count.
    struct IDImpl {
        std::uint64_t token;
    };

    static IDImpl makeImpl();

    IDImpl _impl;
};

} // namespace QN
