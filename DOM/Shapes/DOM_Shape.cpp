#include "DOM/Shapes/DOM_Shape.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

namespace {
const GeometriesDynamicInitEnforcer geometriesDynamicInitEnforcer;
}

QN_DEFINE_DEEP_COPY_WITH_BASE(Shape, Reflectable<Block>)
QN_DEFINE_VALUE(Shape)
QN_DEFINE_CONCRETE(Shape, Block)

} // namespace QN::DOM
