#include "DOM/Shapes/DOM_Crop.h"

#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(Crop)
QN_DEFINE_ALGEBRA(Crop)

} // namespace QN::DOM
