#include "DOM/Charts/DOM_ChartTitle.h"

#include "DOM/Properties/DOM_RunProps.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_DEEP_COPY(ChartTitle)
QN_DEFINE_VALUE(ChartTitle)

} // namespace QN::DOM
