#pragma once

#include <cstddef>
#include <vector>

#include "DOM/Utils/DOM_NodeAddress.h"
#include "Utils/Public/Export.h"

namespace QN::DOM {

/// Many addresses in one document, each as a number. What they begin with in common is held once, so that a long address
/// costs no more than its last steps.
class DOM_API AddressTree {
public:
    /// The number of the empty address.
    static constexpr std::size_t Root = 0;

    /// The number of the address that is one step longer than another one. Numbers count up from 1.
    std::size_t add(std::size_t parent, const NodeAddress::Item& item);

    /// Linear in the length of the address. A number that `add` did not give is undefined behaviour.
    NodeAddress get(std::size_t number) const;

private:
    struct Step {
        std::size_t parent;
        NodeAddress::Item item;
    };

    /// That of the number 1 first.
    std::vector<Step> _steps;
};

} // namespace QN::DOM
