#include "DOM/Properties/DOM_ShapeStyle.h"

#include "DOM/Shapes/DOM_ShapeProps.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(ShapeStyle)

} // namespace QN::DOM
