#include "DOM/Charts/DOM_ChartLines.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(ChartLines)

} // namespace QN::DOM
