#include "DOM/Charts/DOM_ChartLayout.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(ChartLayout)

} // namespace QN::DOM
