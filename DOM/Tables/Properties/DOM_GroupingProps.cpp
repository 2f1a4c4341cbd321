#include "DOM/Tables/Properties/DOM_GroupingProps.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(GroupingProps)

} // namespace QN::DOM
