#include "DOM/Charts/DOM_ChartLegend.h"

#include "DOM/Properties/DOM_RunProps.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(ChartLegend)
QN_DEFINE_DEEP_COPY(ChartLegend)

} // namespace QN::DOM
