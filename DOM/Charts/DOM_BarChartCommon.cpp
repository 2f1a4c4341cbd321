#include "DOM/Charts/DOM_BarChartCommon.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(BarChartCommon)

} // namespace QN::DOM
