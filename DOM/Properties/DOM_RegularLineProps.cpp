#include "DOM/Properties/DOM_RegularLineProps.h"

#include "DOM/Properties/DOM_LineEndingProps.h"
#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(RegularLineProps)
QN_DEFINE_CONCRETE(RegularLineProps, LineProps)
QN_DEFINE_INTERSECT(RegularLineProps)

} // namespace QN::DOM
