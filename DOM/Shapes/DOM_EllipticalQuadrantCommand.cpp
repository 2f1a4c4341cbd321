#include "DOM/Shapes/DOM_EllipticalQuadrantCommand.h"

#include "Utils/Public/ClassScheme/DefineTemplates.h"

namespace QN::DOM::DrawingCommands {

QN_DEFINE_VALUE_TEMPLATE((template <EllipticalQuadrantType type>), (EllipticalQuadrantCommand<type>))
QN_DEFINE_CONCRETE_TEMPLATE((template <EllipticalQuadrantType type>), (EllipticalQuadrantCommand<type>),
                            PathCommand)
QN_DEFINE_DEEP_COPY_TEMPLATE((template <EllipticalQuadrantType type>), (EllipticalQuadrantCommand<type>),
                             EllipticalQuadrantCommand, Reflectable<PathCommand>)

template class EllipticalQuadrantCommand<EllipticalQuadrantType::X>;
template class EllipticalQuadrantCommand<EllipticalQuadrantType::Y>;

} // namespace QN::DOM::DrawingCommands
