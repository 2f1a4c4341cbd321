#include "DOM/Charts/DOM_CategoryAxis.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(CategoryAxis)
QN_DEFINE_CONCRETE(CategoryAxis, ChartAxis)
QN_DEFINE_DEEP_COPY_WITH_BASE(CategoryAxis, Reflectable<ChartAxis>)

} // namespace QN::DOM
