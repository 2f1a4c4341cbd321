#include "DOM/Properties/DOM_SpacingValue.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(SpacingValue)

} // namespace QN::DOM
