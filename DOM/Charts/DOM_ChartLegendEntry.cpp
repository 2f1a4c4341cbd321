#include "DOM/Charts/DOM_ChartLegendEntry.h"

#include "DOM/Properties/DOM_RunProps.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(ChartLegendEntry)

} // namespace QN::DOM
