#include "DOM/Shapes/DOM_Geometry.h"

#include "DOM/Shapes/DOM_CustomGeometry.h"
#include "DOM/Shapes/DOM_PresetGeometry.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_SERIALIZE(Geometry)
QN_DEFINE_DEEP_EQUALITY(Geometry)

GeometriesDynamicInitEnforcer::GeometriesDynamicInitEnforcer() = default;

QN_REGISTER_TYPE(PresetGeometry, "QN::DOM::PresetGeometry")
QN_REGISTER_TYPE(CustomGeometry, "QN::DOM::CustomGeometry")

QN_REGISTER_RELATION(Geometry, PresetGeometry)
QN_REGISTER_RELATION(Geometry, CustomGeometry)

} // namespace QN::DOM
