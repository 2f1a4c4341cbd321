#pragma once

#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasExpression.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Clonable.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/TypeList.h"
#include "Utils/Public/Visitor.h"

/// The commands of an outline. Each is a record of expressions, one for each coordinate, in the box of its path; what
/// they draw is computed elsewhere.

namespace QN::DOM::DrawingCommands {

using DrawingFormulas::Expression;

/// How the pen reaches the first point of a command: without drawing, or along a line.
enum class LinearCommandType : unsigned char { Move = 0, Line = 1 };

enum class RotationDirection : unsigned char { Clockwise = 0, CounterClockwise = 1 };

/// The axis along which a quadrant of an ellipse starts.
enum class EllipticalQuadrantType : unsigned char { X = 0, Y = 1 };

template <LinearCommandType type>
class LinearCommand;
using MoveTo = LinearCommand<LinearCommandType::Move>;
using LineTo = LinearCommand<LinearCommandType::Line>;

class QuadCurveTo;
class CubicCurveTo;

template <LinearCommandType type>
class ArcCommand;
using Arc = ArcCommand<LinearCommandType::Move>;
using ArcTo = ArcCommand<LinearCommandType::Line>;

template <LinearCommandType type, RotationDirection direction>
class ArcByVectorCommand;
using ArcByVectorCW = ArcByVectorCommand<LinearCommandType::Move, RotationDirection::Clockwise>;
using ArcToByVectorCW = ArcByVectorCommand<LinearCommandType::Line, RotationDirection::Clockwise>;
using ArcByVectorCC = ArcByVectorCommand<LinearCommandType::Move, RotationDirection::CounterClockwise>;
using ArcToByVectorCC = ArcByVectorCommand<LinearCommandType::Line, RotationDirection::CounterClockwise>;

template <EllipticalQuadrantType type>
class EllipticalQuadrantCommand;
using EllipticalQuadrantX = EllipticalQuadrantCommand<EllipticalQuadrantType::X>;
using EllipticalQuadrantY = EllipticalQuadrantCommand<EllipticalQuadrantType::Y>;

class ArcRelative;

/// The root of the family. There is no command that closes: closing is a flag of the whole path. An operand may be
/// null: such a command is copied, compared and persisted, but the getter of the operand fails the contract "plainPtr".
class DOM_API PathCommand : public Clonable<PathCommand>, public Reflectable<> {
public:
    using Types =
        TypeList<MoveTo, LineTo, QuadCurveTo, CubicCurveTo, Arc, ArcTo, ArcByVectorCW, ArcToByVectorCW,
                 ArcByVectorCC, ArcToByVectorCC, EllipticalQuadrantX, EllipticalQuadrantY, ArcRelative>;
    QN_FAMILY_ROOT(PathCommand)
    QN_SERIALIZE(PathCommand)

    BOOST_DESCRIBE_CLASS(PathCommand, (), (), (), ())
};

/// Of one dynamic class and equal in every operand.
DOM_API bool areDeeplyEqual(const PathCommand& left, const PathCommand& right);

/// Keeps the unit that registers the family linked in: made wherever commands are persisted.
class DOM_API PathCommandsDynamicInitEnforcer {
public:
    PathCommandsDynamicInitEnforcer();
};

} // namespace QN::DOM::DrawingCommands
