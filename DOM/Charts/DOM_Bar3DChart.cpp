#include "DOM/Charts/DOM_Bar3DChart.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(Bar3DChart)
QN_DEFINE_CONCRETE(Bar3DChart, Chart)
QN_DEFINE_DEEP_COPY_WITH_BASE(Bar3DChart, Reflectable<BarChartCommon>)

} // namespace QN::DOM
