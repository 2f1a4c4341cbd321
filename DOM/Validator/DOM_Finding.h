#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>

#include "DOM/Utils/DOM_NodeAddress.h"
#include "DOM/Validator/DOM_AddressTree.h"
#include "Utils/Public/Export.h"

namespace QN::DOM {

enum class FindingKind : std::uint8_t {
    BrokenRule = 0, ///< `Validator::validate` stops here
    Hazard = 1,     ///< the document is valid, but some later operation stops here
};

/// What is wrong with a document, and where.
struct DOM_API Finding {
    FindingKind kind = FindingKind::BrokenRule;
    /// The place and the text of the contract that is broken, or would be; they live as long as the library. The rules of a
    /// table's own storage have no fixed line.
    std::string_view file;
    int line = 0;
    std::string_view condition;
    /// Empty for a contract without one.
    std::string message;
    /// The addresses of all findings that were collected together, since a copy for each would cost many times the document
    /// where it is deep; null for none.
    std::shared_ptr<const AddressTree> addresses;
    std::size_t addressNumber = AddressTree::Root;

    /// Where it is. The elements of maps are told by the key that finds them, which need not be their own `UUID`. Linear in
    /// the length of the address.
    NodeAddress getAddress() const;

    /// The line that stopping here writes to standard error: "file:line: condition" and, behind another colon, the message.
    std::string getContractText() const;

    /// The text of the contract and the address, for people. The name of a table in it can have line ends.
    std::string toString() const;

    /// Addresses compare by value.
    friend DOM_API bool operator==(const Finding& left, const Finding& right);
};

/// Writes `toString()`.
DOM_API std::ostream& operator<<(std::ostream& stream, const Finding& finding);

} // namespace QN::DOM
