#include "DOM/Tables/Properties/DOM_TableProps.h"

#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(TableProps)
QN_DEFINE_ALGEBRA(TableProps)

} // namespace QN::DOM
