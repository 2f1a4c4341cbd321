#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>

#include "DOM/Utils/DOM_NodeAddress.h"
#include "Utils/Public/Export.h"

namespace QN::DOM {

enum class FindingKind : std::uint8_t {
    BrokenRule = 0, ///< `Validator::validate` stops here
    Hazard = 1,     ///< the document is valid, but some later operation stops here
};

/// What is wrong with a document, and where.
struct DOM_API Finding {
    FindingKind kind = FindingKind::BrokenRule;
    /// The place and the text of the contract that is broken, or would be; they live as long as the library.
    std::string_view file;
    int line = 0;
    std::string_view condition;
    /// Empty for a contract without one.
    std::string message;
    NodeAddress address;

    /// The line that stopping here writes to standard error: "file:line: condition" and, behind another colon, the message.
    std::string getContractText() const;

    /// The text of the contract and the address, in one line, for people.
    std::string toString() const;

    friend bool operator==(const Finding&, const Finding&) = default;
};

/// Writes `toString()`.
DOM_API std::ostream& operator<<(std::ostream& stream, const Finding& finding);

} // namespace QN::DOM
