#include "DOM/Properties/DOM_NamedShapeStyle.h"

#include "DOM/Shapes/DOM_Insets.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_DEEP_COPY_WITH_BASE(NamedShapeStyle, Reflectable<UUIDable>)
QN_DEFINE_VALUE(NamedShapeStyle)

QN_REGISTER_RELATION(UUIDable, NamedShapeStyle)

} // namespace QN::DOM
