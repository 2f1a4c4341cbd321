#pragma once

#include <memory>
#include <utility>

#include "DOM/Shapes/DOM_PathCommand.h"

namespace QN::DOM::DrawingCommands {

/// A quarter of an ellipse from the pen to a point, which starts along one of the axes.
template <EllipticalQuadrantType type>
class EllipticalQuadrantCommand final : public Reflectable<PathCommand> {
public:
    EllipticalQuadrantCommand() = default;
    EllipticalQuadrantCommand(std::unique_ptr<Expression> endX, std::unique_ptr<Expression> endY)
        : _endX(std::move(endX)), _endY(std::move(endY))
    {
    }
    QN_DEEP_COPY(EllipticalQuadrantCommand)

    const Expression* getEndX() const { return getRequiredOperand(_endX); }
    const Expression* getEndY() const { return getRequiredOperand(_endY); }

    QN_CONCRETE(PathCommand)
    QN_VALUE(EllipticalQuadrantCommand)

private:
    std::unique_ptr<Expression> _endX;
    std::unique_ptr<Expression> _endY;

    BOOST_DESCRIBE_CLASS(EllipticalQuadrantCommand, (PathCommand), (), (), (_endX, _endY))
};

extern template class DOM_API EllipticalQuadrantCommand<EllipticalQuadrantType::X>;
extern template class DOM_API EllipticalQuadrantCommand<EllipticalQuadrantType::Y>;

} // namespace QN::DOM::DrawingCommands
