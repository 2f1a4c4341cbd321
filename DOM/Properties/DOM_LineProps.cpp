#include "DOM/Properties/DOM_LineProps.h"

#include "DOM/Properties/DOM_RegularLineProps.h"
#include "DOM/Properties/DOM_ThemeLineProps.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_SERIALIZE(LineProps)
QN_DEFINE_DEEP_EQUALITY(LineProps)
QN_DEFINE_DEEP_ORDER(LineProps)

QN_REGISTER_TYPE(RegularLineProps, "QN::DOM::RegularLineProps")
QN_REGISTER_TYPE(ThemeLineProps, "QN::DOM::ThemeLineProps")

QN_REGISTER_RELATION(LineProps, RegularLineProps)
QN_REGISTER_RELATION(LineProps, ThemeLineProps)

} // namespace QN::DOM
