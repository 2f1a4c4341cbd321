#include "DOM/Shapes/DOM_Path.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::DrawingCommands {

namespace {

const PathCommandsDynamicInitEnforcer pathCommandsDynamicInitEnforcer;

} // namespace

QN_DEFINE_VALUE(Path)
QN_DEFINE_DEEP_COPY(Path)

} // namespace QN::DOM::DrawingCommands
