#include "DOM/Tables/Filters/DOM_UnaryConditionTableFilter.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(UnaryConditionTableFilter)
QN_DEFINE_CONCRETE(UnaryConditionTableFilter, TableFilter)

} // namespace QN::DOM
