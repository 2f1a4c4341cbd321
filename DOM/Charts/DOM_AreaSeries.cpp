#include "DOM/Charts/DOM_AreaSeries.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(AreaSeries)
QN_DEFINE_CONCRETE(AreaSeries, Series)
QN_DEFINE_DEEP_COPY_WITH_BASE(AreaSeries, Reflectable<Series>)

} // namespace QN::DOM
