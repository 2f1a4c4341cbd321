#include "DOM/Shapes/DOM_PresetGeometry.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(PresetGeometry)
QN_DEFINE_CONCRETE(PresetGeometry, Geometry)

} // namespace QN::DOM
