#include "DOM/Charts/DOM_DateAxis.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(DateAxis)
QN_DEFINE_CONCRETE(DateAxis, ChartAxis)
QN_DEFINE_DEEP_COPY_WITH_BASE(DateAxis, Reflectable<ChartAxis>)

} // namespace QN::DOM
