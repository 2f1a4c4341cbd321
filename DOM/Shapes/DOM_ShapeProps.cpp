#include "DOM/Shapes/DOM_ShapeProps.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_DEEP_COPY(ShapeProps)
QN_DEFINE_ORDERED_VALUE(ShapeProps)

} // namespace QN::DOM
