#include "DOM/Tables/Filters/DOM_NullaryConditionTableFilter.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(NullaryConditionTableFilter)
QN_DEFINE_CONCRETE(NullaryConditionTableFilter, TableFilter)

} // namespace QN::DOM
