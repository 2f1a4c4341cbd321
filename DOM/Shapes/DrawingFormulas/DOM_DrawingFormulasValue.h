#pragma once

#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasExpression.h"

namespace QN::DOM::DrawingFormulas {

/// A literal number. One of NaN is unequal to itself.
class DOM_API Value final : public Reflectable<Expression> {
public:
    Value() = default;
    explicit Value(double value) : _value(value) {}

    double getValue() const { return _value; }
    void setValue(double value) { _value = value; }

    QN_CONCRETE(Expression)
    QN_VALUE(Value)

private:
    double _value = 0.0;

    BOOST_DESCRIBE_CLASS(Value, (Expression), (), (), (_value))
};

} // namespace QN::DOM::DrawingFormulas
