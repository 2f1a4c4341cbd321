#include "DOM/Charts/DOM_PlotArea.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(PlotArea)
QN_DEFINE_DEEP_COPY(PlotArea)

} // namespace QN::DOM
