#include "DOM/Properties/DOM_NoFill.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(NoFill)
QN_DEFINE_CONCRETE(NoFill, Fill)

} // namespace QN::DOM
