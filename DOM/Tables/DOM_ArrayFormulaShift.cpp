#include "DOM/Tables/DOM_ArrayFormulaShift.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(ArrayFormulaShift)

} // namespace QN::DOM
