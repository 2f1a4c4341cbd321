#include "DOM/Charts/DOM_ValueAxis.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(ValueAxis)
QN_DEFINE_CONCRETE(ValueAxis, ChartAxis)
QN_DEFINE_DEEP_COPY_WITH_BASE(ValueAxis, Reflectable<ChartAxis>)

} // namespace QN::DOM
