#include "DOM/Validator/DOM_WalkAddress.h"

#include <algorithm>

namespace QN::DOM {

void WalkAddress::cutToPosition(std::size_t position)
{
    _address.cutToPosition(position);
    _recorded.resize(std::min(_recorded.size(), position));
}

std::size_t WalkAddress::record()
{
    std::size_t number = _recorded.empty() ? AddressTree::Root : _recorded.back();
    if (_tree != nullptr) {
        for (std::size_t index = _recorded.size(); index < _address.size(); ++index) {
            number = _tree->add(number, *(_address.begin() + static_cast<std::ptrdiff_t>(index)));
            _recorded.push_back(number);
        }
    }
    return number;
}

} // namespace QN::DOM
