#include "DOM/Shapes/DOM_PathCommand.h"

#include "DOM/Shapes/DOM_ArcCommands.h"
#include "DOM/Shapes/DOM_CurveCommands.h"
#include "DOM/Shapes/DOM_EllipticalQuadrantCommand.h"
#include "DOM/Shapes/DOM_LinearCommand.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::DrawingCommands {

QN_DEFINE_SERIALIZE(PathCommand)
QN_DEFINE_DEEP_EQUALITY(PathCommand)

PathCommandsDynamicInitEnforcer::PathCommandsDynamicInitEnforcer() = default;

namespace {

const DrawingFormulas::ExpressionsDynamicInitEnforcer expressionsDynamicInitEnforcer;

} // namespace

QN_REGISTER_TYPE(MoveTo, "QN::DOM::DrawingCommands::MoveTo")
QN_REGISTER_TYPE(LineTo, "QN::DOM::DrawingCommands::LineTo")
QN_REGISTER_TYPE(QuadCurveTo, "QN::DOM::DrawingCommands::QuadCurveTo")
QN_REGISTER_TYPE(CubicCurveTo, "QN::DOM::DrawingCommands::CubicCurveTo")
QN_REGISTER_TYPE(Arc, "QN::DOM::DrawingCommands::Arc")
QN_REGISTER_TYPE(ArcTo, "QN::DOM::DrawingCommands::ArcTo")
QN_REGISTER_TYPE(ArcByVectorCW, "QN::DOM::DrawingCommands::ArcByVectorCW")
QN_REGISTER_TYPE(ArcToByVectorCW, "QN::DOM::DrawingCommands::ArcToByVectorCW")
QN_REGISTER_TYPE(ArcByVectorCC, "QN::DOM::DrawingCommands::ArcByVectorCC")
QN_REGISTER_TYPE(ArcToByVectorCC, "QN::DOM::DrawingCommands::ArcToByVectorCC")
QN_REGISTER_TYPE(EllipticalQuadrantX, "QN::DOM::DrawingCommands::EllipticalQuadrantX")
QN_REGISTER_TYPE(EllipticalQuadrantY, "QN::DOM::DrawingCommands::EllipticalQuadrantY")
QN_REGISTER_TYPE(ArcRelative, "QN::DOM::DrawingCommands::ArcRelative")

QN_REGISTER_RELATION(PathCommand, MoveTo)
QN_REGISTER_RELATION(PathCommand, LineTo)
QN_REGISTER_RELATION(PathCommand, QuadCurveTo)
QN_REGISTER_RELATION(PathCommand, CubicCurveTo)
QN_REGISTER_RELATION(PathCommand, Arc)
QN_REGISTER_RELATION(PathCommand, ArcTo)
QN_REGISTER_RELATION(PathCommand, ArcByVectorCW)
QN_REGISTER_RELATION(PathCommand, ArcToByVectorCW)
QN_REGISTER_RELATION(PathCommand, ArcByVectorCC)
QN_REGISTER_RELATION(PathCommand, ArcToByVectorCC)
QN_REGISTER_RELATION(PathCommand, EllipticalQuadrantX)
QN_REGISTER_RELATION(PathCommand, EllipticalQuadrantY)
QN_REGISTER_RELATION(PathCommand, ArcRelative)

} // namespace QN::DOM::DrawingCommands
