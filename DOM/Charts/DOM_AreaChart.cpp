#include "DOM/Charts/DOM_AreaChart.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(AreaChart)
QN_DEFINE_CONCRETE(AreaChart, Chart)
QN_DEFINE_DEEP_COPY_WITH_BASE(AreaChart, Reflectable<AreaChartCommon>)

} // namespace QN::DOM
