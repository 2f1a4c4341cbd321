#include "DOM/Properties/DOM_NamedTextStyle.h"

#include "DOM/Properties/DOM_ParaProps.h"
#include "DOM/Properties/DOM_RunProps.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_DEEP_COPY_WITH_BASE(NamedTextStyle, Reflectable<UUIDable>)
QN_DEFINE_VALUE(NamedTextStyle)

QN_REGISTER_RELATION(UUIDable, NamedTextStyle)

} // namespace QN::DOM
