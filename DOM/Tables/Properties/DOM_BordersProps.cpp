#include "DOM/Tables/Properties/DOM_BordersProps.h"

#include "DOM/Properties/DOM_LineProps.h"
#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(BordersProps)
QN_DEFINE_ALGEBRA(BordersProps)

} // namespace QN::DOM
