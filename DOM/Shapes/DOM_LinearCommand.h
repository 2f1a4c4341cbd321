#pragma once

#include <memory>
#include <utility>

#include "DOM/Shapes/DOM_PathCommand.h"

namespace QN::DOM::DrawingCommands {

/// Moves the pen to a point, or draws a line to it.
template <LinearCommandType type>
class LinearCommand final : public Reflectable<PathCommand> {
public:
    LinearCommand() = default;
    LinearCommand(std::unique_ptr<Expression> x, std::unique_ptr<Expression> y)
        : _x(std::move(x)), _y(std::move(y))
    {
    }
    QN_DEEP_COPY(LinearCommand)

    const Expression* getX() const { return getRequiredOperand(_x); }
    const Expression* getY() const { return getRequiredOperand(_y); }

    QN_CONCRETE(PathCommand)
    QN_VALUE(LinearCommand)

private:
    std::unique_ptr<Expression> _x;
    std::unique_ptr<Expression> _y;

    BOOST_DESCRIBE_CLASS(LinearCommand, (PathCommand), (), (), (_x, _y))
};

extern template class DOM_API LinearCommand<LinearCommandType::Move>;
extern template class DOM_API LinearCommand<LinearCommandType::Line>;

} // namespace QN::DOM::DrawingCommands
