#include "DOM/Properties/DOM_LineEndingProps.h"

#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(LineEndingProps)
QN_DEFINE_ALGEBRA(LineEndingProps)

} // namespace QN::DOM
