#include "DOM/Charts/DOM_ChartSurface.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(ChartSurface)

} // namespace QN::DOM
