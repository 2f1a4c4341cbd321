#include "DOM/Tables/Filters/DOM_ByColumnTableFilter.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(ByColumnTableFilter)

} // namespace QN::DOM
