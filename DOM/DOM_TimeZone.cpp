#include "DOM/DOM_TimeZone.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(TimeZone)

} // namespace QN::DOM
