#include "DOM/Properties/DOM_GradientFill.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(GradientFill)
QN_DEFINE_CONCRETE(GradientFill, Fill)

} // namespace QN::DOM
