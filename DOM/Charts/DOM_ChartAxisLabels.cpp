#include "DOM/Charts/DOM_ChartAxisLabels.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(ChartAxisLabels)

} // namespace QN::DOM
