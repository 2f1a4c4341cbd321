#include "Utils/Public/NodeAddressing/MapKey.h"

#include "Utils/Public/ClassScheme/Define.h"
#include "Utils/Public/NodeAddressing/SimpleValueMapKey.h"

namespace QN::NodeAddressing {

QN_DEFINE_DEEP_EQUALITY(MapKey)

} // namespace QN::NodeAddressing
