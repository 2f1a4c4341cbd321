#include "DOM/Properties/DOM_SolidFill.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(SolidFill)
QN_DEFINE_CONCRETE(SolidFill, Fill)

} // namespace QN::DOM
