#include "DOM/Shapes/DOM_Insets.h"

#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(Insets)
QN_DEFINE_ALGEBRA(Insets)

} // namespace QN::DOM
