#include "DOM/Tables/Filters/DOM_CompositeTableFilter.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(CompositeTableFilter)
QN_DEFINE_DEEP_COPY_WITH_BASE(CompositeTableFilter, Reflectable<TableFilter>)
QN_DEFINE_CONCRETE(CompositeTableFilter, TableFilter)

} // namespace QN::DOM
