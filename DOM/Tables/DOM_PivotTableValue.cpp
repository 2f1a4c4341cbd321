#include "DOM/Tables/DOM_PivotTableValue.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(PivotTableValue)
QN_DEFINE_DEEP_COPY(PivotTableValue)

} // namespace QN::DOM
