#include "DOM/Charts/DOM_BarSeries.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(BarSeries)
QN_DEFINE_CONCRETE(BarSeries, Series)
QN_DEFINE_DEEP_COPY_WITH_BASE(BarSeries, Reflectable<Series>)

} // namespace QN::DOM
