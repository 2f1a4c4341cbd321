#include "DOM/Charts/DOM_PieSeries.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(PieSeries)
QN_DEFINE_CONCRETE(PieSeries, Series)
QN_DEFINE_DEEP_COPY_WITH_BASE(PieSeries, Reflectable<Series>)

} // namespace QN::DOM
