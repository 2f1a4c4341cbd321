#include "DOM/Shapes/DOM_ArcCommands.h"

#include "Utils/Public/ClassScheme/DefineTemplates.h"

namespace QN::DOM::DrawingCommands {

QN_DEFINE_VALUE_TEMPLATE((template <LinearCommandType type>), (ArcCommand<type>))
QN_DEFINE_CONCRETE_TEMPLATE((template <LinearCommandType type>), (ArcCommand<type>), PathCommand)
QN_DEFINE_DEEP_COPY_TEMPLATE((template <LinearCommandType type>), (ArcCommand<type>), ArcCommand,
                             Reflectable<PathCommand>)

template class ArcCommand<LinearCommandType::Move>;
template class ArcCommand<LinearCommandType::Line>;

QN_DEFINE_VALUE_TEMPLATE((template <LinearCommandType type, RotationDirection direction>),
                         (ArcByVectorCommand<type, direction>))
QN_DEFINE_CONCRETE_TEMPLATE((template <LinearCommandType type, RotationDirection direction>),
                            (ArcByVectorCommand<type, direction>), PathCommand)
QN_DEFINE_DEEP_COPY_TEMPLATE((template <LinearCommandType type, RotationDirection direction>),
                             (ArcByVectorCommand<type, direction>), ArcByVectorCommand,
                             Reflectable<PathCommand>)

template class ArcByVectorCommand<LinearCommandType::Move, RotationDirection::Clockwise>;
template class ArcByVectorCommand<LinearCommandType::Line, RotationDirection::Clockwise>;
template class ArcByVectorCommand<LinearCommandType::Move, RotationDirection::CounterClockwise>;
template class ArcByVectorCommand<LinearCommandType::Line, RotationDirection::CounterClockwise>;

QN_DEFINE_VALUE(ArcRelative)
QN_DEFINE_CONCRETE(ArcRelative, PathCommand)
QN_DEFINE_DEEP_COPY_WITH_BASE(ArcRelative, Reflectable<PathCommand>)

} // namespace QN::DOM::DrawingCommands
