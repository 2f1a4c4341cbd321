#include "DOM/Charts/DOM_LineChart.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(LineChart)
QN_DEFINE_CONCRETE(LineChart, Chart)
QN_DEFINE_DEEP_COPY_WITH_BASE(LineChart, Reflectable<LineChartCommon>)

} // namespace QN::DOM
