#pragma once

#include <utility>

#include "DOM/Properties/DOM_Color.h"

namespace QN::DOM {

/// A colour at a place along a gradient.
class DOM_API GradientStop {
public:
    /// A fraction of the gradient's length. Any number is taken.
    double getPosition() const { return _position; }
    void setPosition(double position) { _position = position; }

    const Color& getColor() const { return _color; }
    void setColor(Color color) { _color = std::move(color); }

    QN_ORDERED_VALUE(GradientStop)

private:
    double _position = 0.0;
    Color _color;

    BOOST_DESCRIBE_CLASS(GradientStop, (), (), (), (_position, _color))
};

} // namespace QN::DOM
