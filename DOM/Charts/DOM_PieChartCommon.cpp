#include "DOM/Charts/DOM_PieChartCommon.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(PieChartCommon)

} // namespace QN::DOM
