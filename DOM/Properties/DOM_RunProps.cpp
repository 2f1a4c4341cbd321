#include "DOM/Properties/DOM_RunProps.h"

#include "DOM/Properties/DOM_FontProps.h"
#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "DOM/Properties/DOM_RegularLineProps.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(RunProps)
QN_DEFINE_ALGEBRA(RunProps)

} // namespace QN::DOM
