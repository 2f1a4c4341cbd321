#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasReference.h"

#include "Utils/Public/ClassScheme/DefineTemplates.h"

namespace QN::DOM::DrawingFormulas {

QN_DEFINE_VALUE_TEMPLATE((template <ReferenceType type>), (Reference<type>))
QN_DEFINE_CONCRETE_TEMPLATE((template <ReferenceType type>), (Reference<type>), Expression)

template class Reference<ReferenceType::AdjustValue>;
template class Reference<ReferenceType::Formula>;

} // namespace QN::DOM::DrawingFormulas
