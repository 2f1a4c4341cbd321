#include "DOM/Tables/DOM_TableRangeByID.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(TableRangeByID)

} // namespace QN::DOM
