#include "DOM/Shapes/DOM_CustomGeometry.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(CustomGeometry)
QN_DEFINE_CONCRETE(CustomGeometry, Geometry)

} // namespace QN::DOM
