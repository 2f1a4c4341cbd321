#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasValue.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::DrawingFormulas {

QN_DEFINE_VALUE(Value)
QN_DEFINE_CONCRETE(Value, Expression)

} // namespace QN::DOM::DrawingFormulas
