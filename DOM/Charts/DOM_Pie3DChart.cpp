#include "DOM/Charts/DOM_Pie3DChart.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(Pie3DChart)
QN_DEFINE_CONCRETE(Pie3DChart, Chart)
QN_DEFINE_DEEP_COPY_WITH_BASE(Pie3DChart, Reflectable<PieChartCommon>)

} // namespace QN::DOM
