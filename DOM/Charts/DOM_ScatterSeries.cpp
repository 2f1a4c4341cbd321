#include "DOM/Charts/DOM_ScatterSeries.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(ScatterSeries)
QN_DEFINE_CONCRETE(ScatterSeries, Series)
QN_DEFINE_DEEP_COPY_WITH_BASE(ScatterSeries, Reflectable<Series>)

} // namespace QN::DOM
