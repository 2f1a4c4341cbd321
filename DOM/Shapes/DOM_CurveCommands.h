#pragma once

#include <memory>
#include <utility>

#include "DOM/Shapes/DOM_PathCommand.h"

namespace QN::DOM::DrawingCommands {

/// A quadratic Bezier curve from the pen to a point.
class DOM_API QuadCurveTo final : public Reflectable<PathCommand> {
public:
    QuadCurveTo() = default;
    QuadCurveTo(std::unique_ptr<Expression> controlX, std::unique_ptr<Expression> controlY,
                std::unique_ptr<Expression> x, std::unique_ptr<Expression> y)
        : _controlX(std::move(controlX)), _controlY(std::move(controlY)), _x(std::move(x)), _y(std::move(y))
    {
    }
    QN_DEEP_COPY(QuadCurveTo)

    const Expression* getControlX() const { return getRequiredOperand(_controlX); }
    const Expression* getControlY() const { return getRequiredOperand(_controlY); }
    const Expression* getX() const { return getRequiredOperand(_x); }
    const Expression* getY() const { return getRequiredOperand(_y); }

    QN_CONCRETE(PathCommand)
    QN_VALUE(QuadCurveTo)

private:
    std::unique_ptr<Expression> _controlX;
    std::unique_ptr<Expression> _controlY;
    std::unique_ptr<Expression> _x;
    std::unique_ptr<Expression> _y;

    BOOST_DESCRIBE_CLASS(QuadCurveTo, (PathCommand), (), (), (_controlX, _controlY, _x, _y))
};

/// A cubic Bezier curve from the pen to a point.
class DOM_API CubicCurveTo final : public Reflectable<PathCommand> {
public:
    CubicCurveTo() = default;
    CubicCurveTo(std::unique_ptr<Expression> control1X, std::unique_ptr<Expression> control1Y,
                 std::unique_ptr<Expression> control2X, std::unique_ptr<Expression> control2Y,
                 std::unique_ptr<Expression> x, std::unique_ptr<Expression> y)
        : _control1X(std::move(control1X)), _control1Y(std::move(control1Y)),
          _control2X(std::move(control2X)), _control2Y(std::move(control2Y)), _x(std::move(x)),
          _y(std::move(y))
    {
    }
    QN_DEEP_COPY(CubicCurveTo)

    const Expression* getControl1X() const { return getRequiredOperand(_control1X); }
    const Expression* getControl1Y() const { return getRequiredOperand(_control1Y); }
    const Expression* getControl2X() const { return getRequiredOperand(_control2X); }
    const Expression* getControl2Y() const { return getRequiredOperand(_control2Y); }
    const Expression* getX() const { return getRequiredOperand(_x); }
    const Expression* getY() const { return getRequiredOperand(_y); }

    QN_CONCRETE(PathCommand)
    QN_VALUE(CubicCurveTo)

private:
    std::unique_ptr<Expression> _control1X;
    std::unique_ptr<Expression> _control1Y;
    std::unique_ptr<Expression> _control2X;
    std::unique_ptr<Expression> _control2Y;
    std::unique_ptr<Expression> _x;
    std::unique_ptr<Expression> _y;

    BOOST_DESCRIBE_CLASS(CubicCurveTo, (PathCommand), (), (),
                         (_control1X, _control1Y, _control2X, _control2Y, _x, _y))
};

} // namespace QN::DOM::DrawingCommands
