#include "DOM/Charts/DOM_SeriesAxis.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(SeriesAxis)
QN_DEFINE_CONCRETE(SeriesAxis, ChartAxis)
QN_DEFINE_DEEP_COPY_WITH_BASE(SeriesAxis, Reflectable<ChartAxis>)

} // namespace QN::DOM
