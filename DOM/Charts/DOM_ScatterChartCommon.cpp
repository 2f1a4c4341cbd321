#include "DOM/Charts/DOM_ScatterChartCommon.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(ScatterChartCommon)

} // namespace QN::DOM
