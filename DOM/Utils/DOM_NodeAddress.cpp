#include "DOM/Utils/DOM_NodeAddress.h"

template class QN::NodeAddressing::NodeAddress<QN::DOM::NativeNodeAddressTag, QN::DOM::NativeDOMNodeType>;
