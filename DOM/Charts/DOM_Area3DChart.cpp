#include "DOM/Charts/DOM_Area3DChart.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(Area3DChart)
QN_DEFINE_CONCRETE(Area3DChart, Chart)
QN_DEFINE_DEEP_COPY_WITH_BASE(Area3DChart, Reflectable<AreaChartCommon>)

} // namespace QN::DOM
