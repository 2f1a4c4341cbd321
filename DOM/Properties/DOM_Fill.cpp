#include "DOM/Properties/DOM_Fill.h"

#include "DOM/Properties/DOM_BlipFill.h"
#include "DOM/Properties/DOM_GradientFill.h"
#include "DOM/Properties/DOM_NoFill.h"
#include "DOM/Properties/DOM_PatternFill.h"
#include "DOM/Properties/DOM_SolidFill.h"
#include "DOM/Properties/DOM_ThemeFill.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_SERIALIZE(Fill)
QN_DEFINE_DEEP_EQUALITY(Fill)
QN_DEFINE_DEEP_ORDER(Fill)

QN_REGISTER_TYPE(NoFill, "QN::DOM::NoFill")
QN_REGISTER_TYPE(SolidFill, "QN::DOM::SolidFill")
QN_REGISTER_TYPE(GradientFill, "QN::DOM::GradientFill")
QN_REGISTER_TYPE(BlipFill, "QN::DOM::BlipFill")
QN_REGISTER_TYPE(PatternFill, "QN::DOM::PatternFill")
QN_REGISTER_TYPE(ThemeFill, "QN::DOM::ThemeFill")

QN_REGISTER_RELATION(Fill, NoFill)
QN_REGISTER_RELATION(Fill, SolidFill)
QN_REGISTER_RELATION(Fill, GradientFill)
QN_REGISTER_RELATION(Fill, BlipFill)
QN_REGISTER_RELATION(Fill, PatternFill)
QN_REGISTER_RELATION(Fill, ThemeFill)

} // namespace QN::DOM
