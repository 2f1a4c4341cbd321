#include "DOM/Shapes/DOM_LinearCommand.h"

#include "Utils/Public/ClassScheme/DefineTemplates.h"

namespace QN::DOM::DrawingCommands {

QN_DEFINE_VALUE_TEMPLATE((template <LinearCommandType type>), (LinearCommand<type>))
QN_DEFINE_CONCRETE_TEMPLATE((template <LinearCommandType type>), (LinearCommand<type>), PathCommand)
QN_DEFINE_DEEP_COPY_TEMPLATE((template <LinearCommandType type>), (LinearCommand<type>), LinearCommand,
                             Reflectable<PathCommand>)

template class LinearCommand<LinearCommandType::Move>;
template class LinearCommand<LinearCommandType::Line>;

} // namespace QN::DOM::DrawingCommands
