#include "DOM/Charts/DOM_ChartSpace.h"

#include "DOM/Properties/DOM_RunProps.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(ChartSpace)
QN_DEFINE_CONCRETE(ChartSpace, GraphicalObject)
QN_DEFINE_DEEP_COPY_WITH_BASE(ChartSpace, Reflectable<GraphicalObject>)

} // namespace QN::DOM
