#include "DOM/Charts/DOM_ChartMarker.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(ChartMarker)

} // namespace QN::DOM
