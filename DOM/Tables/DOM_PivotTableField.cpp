#include "DOM/Tables/DOM_PivotTableField.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(PivotTableField)

} // namespace QN::DOM
