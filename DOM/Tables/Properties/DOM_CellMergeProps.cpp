#include "DOM/Tables/Properties/DOM_CellMergeProps.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(CellMergeProps)

} // namespace QN::DOM
