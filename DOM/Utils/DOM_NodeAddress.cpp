#include "DOM/Utils/DOM_NodeAddress.h"

#include <ostream>

template class QN::NodeAddressing::NodeAddress<QN::DOM::NativeNodeAddressTag, QN::DOM::NativeDOMNodeType>;

namespace QN::DOM {

std::ostream& operator<<(std::ostream& stream, const NodeAddress& address)
{
    return stream << address.toString();
}

} // namespace QN::DOM
