#include "DOM/Properties/DOM_GradientStop.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(GradientStop)

} // namespace QN::DOM
