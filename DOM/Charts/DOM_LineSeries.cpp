#include "DOM/Charts/DOM_LineSeries.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(LineSeries)
QN_DEFINE_CONCRETE(LineSeries, Series)
QN_DEFINE_DEEP_COPY_WITH_BASE(LineSeries, Reflectable<Series>)

} // namespace QN::DOM
