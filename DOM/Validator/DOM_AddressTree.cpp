#include "DOM/Validator/DOM_AddressTree.h"

namespace QN::DOM {

std::size_t AddressTree::add(std::size_t parent, const NodeAddress::Item& item)
{
    _steps.push_back({parent, item});
    return _steps.size();
}

NodeAddress AddressTree::get(std::size_t number) const
{
    std::vector<const NodeAddress::Item*> items;
    for (; number != Root; number = _steps[number - 1].parent) {
        items.push_back(&_steps[number - 1].item);
    }
    NodeAddress address;
    for (auto item = items.rbegin(); item != items.rend(); ++item) {
        address.appendItems(**item);
    }
    return address;
}

} // namespace QN::DOM
