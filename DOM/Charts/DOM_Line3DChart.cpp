#include "DOM/Charts/DOM_Line3DChart.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(Line3DChart)
QN_DEFINE_CONCRETE(Line3DChart, Chart)
QN_DEFINE_DEEP_COPY_WITH_BASE(Line3DChart, Reflectable<LineChartCommon>)

} // namespace QN::DOM
