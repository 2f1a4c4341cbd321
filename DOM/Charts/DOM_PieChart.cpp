#include "DOM/Charts/DOM_PieChart.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(PieChart)
QN_DEFINE_CONCRETE(PieChart, Chart)
QN_DEFINE_DEEP_COPY_WITH_BASE(PieChart, Reflectable<PieChartCommon>)

} // namespace QN::DOM
