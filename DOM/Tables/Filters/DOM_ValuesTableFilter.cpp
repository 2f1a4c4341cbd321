#include "DOM/Tables/Filters/DOM_ValuesTableFilter.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(ValuesTableFilter)
QN_DEFINE_CONCRETE(ValuesTableFilter, TableFilter)

} // namespace QN::DOM
