#pragma once

#include "DOM/Utils/DOM_NativeDOMNodeType.h"
#include "Utils/Public/Export.h"
#include "Utils/Public/NodeAddressing/NodeAddress.h"

namespace QN::DOM {

struct NativeNodeAddressTag {
    static constexpr const char* RootName = "document";
};

/// The address of a node in a `Document`.
using NodeAddress = NodeAddressing::NodeAddress<NativeNodeAddressTag, NativeDOMNodeType>;

} // namespace QN::DOM

extern template class DOM_API
    QN::NodeAddressing::NodeAddress<QN::DOM::NativeNodeAddressTag, QN::DOM::NativeDOMNodeType>;
