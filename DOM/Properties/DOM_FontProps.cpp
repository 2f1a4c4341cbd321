#include "DOM/Properties/DOM_FontProps.h"

#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(FontProps)
QN_DEFINE_ALGEBRA(FontProps)

} // namespace QN::DOM
