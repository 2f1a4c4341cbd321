#include "DOM/Shapes/DOM_CurveCommands.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::DrawingCommands {

QN_DEFINE_VALUE(QuadCurveTo)
QN_DEFINE_CONCRETE(QuadCurveTo, PathCommand)
QN_DEFINE_DEEP_COPY_WITH_BASE(QuadCurveTo, Reflectable<PathCommand>)

QN_DEFINE_VALUE(CubicCurveTo)
QN_DEFINE_CONCRETE(CubicCurveTo, PathCommand)
QN_DEFINE_DEEP_COPY_WITH_BASE(CubicCurveTo, Reflectable<PathCommand>)

} // namespace QN::DOM::DrawingCommands
