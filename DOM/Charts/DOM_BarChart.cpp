#include "DOM/Charts/DOM_BarChart.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(BarChart)
QN_DEFINE_CONCRETE(BarChart, Chart)
QN_DEFINE_DEEP_COPY_WITH_BASE(BarChart, Reflectable<BarChartCommon>)

} // namespace QN::DOM
