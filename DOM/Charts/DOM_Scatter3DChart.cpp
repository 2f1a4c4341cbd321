#include "DOM/Charts/DOM_Scatter3DChart.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(Scatter3DChart)
QN_DEFINE_CONCRETE(Scatter3DChart, Chart)
QN_DEFINE_DEEP_COPY_WITH_BASE(Scatter3DChart, Reflectable<ScatterChartCommon>)

} // namespace QN::DOM
