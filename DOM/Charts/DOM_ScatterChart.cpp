#include "DOM/Charts/DOM_ScatterChart.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(ScatterChart)
QN_DEFINE_CONCRETE(ScatterChart, Chart)
QN_DEFINE_DEEP_COPY_WITH_BASE(ScatterChart, Reflectable<ScatterChartCommon>)

} // namespace QN::DOM
