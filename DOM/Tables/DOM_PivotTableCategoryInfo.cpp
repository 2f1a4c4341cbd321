#include "DOM/Tables/DOM_PivotTableCategoryInfo.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(PivotTableCategoryInfo)

} // namespace QN::DOM
