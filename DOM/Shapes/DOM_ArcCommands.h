#pragma once

#include <memory>
#include <utility>

#include "DOM/Shapes/DOM_PathCommand.h"

namespace QN::DOM::DrawingCommands {

/// A segment of an ellipse between two angles, the ellipse given by its centre and radii.
template <LinearCommandType type>
class ArcCommand final : public Reflectable<PathCommand> {
public:
    ArcCommand() = default;
    ArcCommand(std::unique_ptr<Expression> centerX, std::unique_ptr<Expression> centerY,
               std::unique_ptr<Expression> width, std::unique_ptr<Expression> height,
               std::unique_ptr<Expression> startAngle, std::unique_ptr<Expression> endAngle)
        : _centerX(std::move(centerX)), _centerY(std::move(centerY)), _width(std::move(width)),
          _height(std::move(height)), _startAngle(std::move(startAngle)), _endAngle(std::move(endAngle))
    {
    }
    QN_DEEP_COPY(ArcCommand)

    const Expression* getCenterX() const { return getRequiredOperand(_centerX); }
    const Expression* getCenterY() const { return getRequiredOperand(_centerY); }
    const Expression* getWidth() const { return getRequiredOperand(_width); }
    const Expression* getHeight() const { return getRequiredOperand(_height); }
    const Expression* getStartAngle() const { return getRequiredOperand(_startAngle); }
    const Expression* getEndAngle() const { return getRequiredOperand(_endAngle); }

    QN_CONCRETE(PathCommand)
    QN_VALUE(ArcCommand)

private:
    std::unique_ptr<Expression> _centerX;
    std::unique_ptr<Expression> _centerY;
    std::unique_ptr<Expression> _width;
    std::unique_ptr<Expression> _height;
    std::unique_ptr<Expression> _startAngle;
    std::unique_ptr<Expression> _endAngle;

    BOOST_DESCRIBE_CLASS(ArcCommand, (PathCommand), (), (),
                         (_centerX, _centerY, _width, _height, _startAngle, _endAngle))
};

extern template class DOM_API ArcCommand<LinearCommandType::Move>;
extern template class DOM_API ArcCommand<LinearCommandType::Line>;

/// A segment of the ellipse in a box, between the rays from the centre of the box through two points.
template <LinearCommandType type, RotationDirection direction>
class ArcByVectorCommand final : public Reflectable<PathCommand> {
public:
    ArcByVectorCommand() = default;
    ArcByVectorCommand(std::unique_ptr<Expression> boundingBoxX1, std::unique_ptr<Expression> boundingBoxY1,
                       std::unique_ptr<Expression> boundingBoxX2, std::unique_ptr<Expression> boundingBoxY2,
                       std::unique_ptr<Expression> startVectorX, std::unique_ptr<Expression> startVectorY,
                       std::unique_ptr<Expression> endVectorX, std::unique_ptr<Expression> endVectorY)
        : _boundingBoxX1(std::move(boundingBoxX1)), _boundingBoxY1(std::move(boundingBoxY1)),
          _boundingBoxX2(std::move(boundingBoxX2)), _boundingBoxY2(std::move(boundingBoxY2)),
          _startVectorX(std::move(startVectorX)), _startVectorY(std::move(startVectorY)),
          _endVectorX(std::move(endVectorX)), _endVectorY(std::move(endVectorY))
    {
    }
    QN_DEEP_COPY(ArcByVectorCommand)

    const Expression* getBoundingBoxX1() const { return getRequiredOperand(_boundingBoxX1); }
    const Expression* getBoundingBoxY1() const { return getRequiredOperand(_boundingBoxY1); }
    const Expression* getBoundingBoxX2() const { return getRequiredOperand(_boundingBoxX2); }
    const Expression* getBoundingBoxY2() const { return getRequiredOperand(_boundingBoxY2); }
    const Expression* getStartVectorX() const { return getRequiredOperand(_startVectorX); }
    const Expression* getStartVectorY() const { return getRequiredOperand(_startVectorY); }
    const Expression* getEndVectorX() const { return getRequiredOperand(_endVectorX); }
    const Expression* getEndVectorY() const { return getRequiredOperand(_endVectorY); }

    QN_CONCRETE(PathCommand)
    QN_VALUE(ArcByVectorCommand)

private:
    std::unique_ptr<Expression> _boundingBoxX1;
    std::unique_ptr<Expression> _boundingBoxY1;
    std::unique_ptr<Expression> _boundingBoxX2;
    std::unique_ptr<Expression> _boundingBoxY2;
    std::unique_ptr<Expression> _startVectorX;
    std::unique_ptr<Expression> _startVectorY;
    std::unique_ptr<Expression> _endVectorX;
    std::unique_ptr<Expression> _endVectorY;

    BOOST_DESCRIBE_CLASS(ArcByVectorCommand, (PathCommand), (), (),
                         (_boundingBoxX1, _boundingBoxY1, _boundingBoxX2, _boundingBoxY2, _startVectorX,
                          _startVectorY, _endVectorX, _endVectorY))
};

extern template class DOM_API ArcByVectorCommand<LinearCommandType::Move, RotationDirection::Clockwise>;
extern template class DOM_API ArcByVectorCommand<LinearCommandType::Line, RotationDirection::Clockwise>;
extern template class DOM_API
    ArcByVectorCommand<LinearCommandType::Move, RotationDirection::CounterClockwise>;
extern template class DOM_API
    ArcByVectorCommand<LinearCommandType::Line, RotationDirection::CounterClockwise>;

/// A segment of an ellipse that starts at the pen, at a given angle of the ellipse, and spans a given angle.
class DOM_API ArcRelative final : public Reflectable<PathCommand> {
public:
    ArcRelative() = default;
    ArcRelative(std::unique_ptr<Expression> widthRadius, std::unique_ptr<Expression> heightRadius,
                std::unique_ptr<Expression> startAngle, std::unique_ptr<Expression> swingAngle)
        : _widthRadius(std::move(widthRadius)), _heightRadius(std::move(heightRadius)),
          _startAngle(std::move(startAngle)), _swingAngle(std::move(swingAngle))
    {
    }
    QN_DEEP_COPY(ArcRelative)

    const Expression* getWidthRadius() const { return getRequiredOperand(_widthRadius); }
    const Expression* getHeightRadius() const { return getRequiredOperand(_heightRadius); }
    const Expression* getStartAngle() const { return getRequiredOperand(_startAngle); }
    const Expression* getSwingAngle() const { return getRequiredOperand(_swingAngle); }

    QN_CONCRETE(PathCommand)
    QN_VALUE(ArcRelative)

private:
    std::unique_ptr<Expression> _widthRadius;
    std::unique_ptr<Expression> _heightRadius;
    std::unique_ptr<Expression> _startAngle;
    std::unique_ptr<Expression> _swingAngle;

    BOOST_DESCRIBE_CLASS(ArcRelative, (PathCommand), (), (),
                         (_widthRadius, _heightRadius, _startAngle, _swingAngle))
};

} // namespace QN::DOM::DrawingCommands
