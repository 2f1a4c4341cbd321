#pragma once

#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasExpression.h"

namespace QN::DOM::DrawingFormulas {

/// The built-in constants. Only `Pi` and `FullTurn` are numbers by themselves: the others depend on the shape that is
/// drawn. Sides and extents are those of the shape's box; the names from `HasStroke` on are those of ODF's enhanced
/// geometry. Any other number passes through unchanged.
enum class ConstantType : unsigned char {
    Left = 0,
    Top = 1,
    Right = 2,
    Bottom = 3,
    Width = 4,
    Height = 5,
    ShortSide = 6,
    LongSide = 7,
    Pi = 8,
    FullTurn = 9,
    HasStroke = 10,
    HasFill = 11,
    XStretch = 12,
    YStretch = 13,
    LogWidth = 14,
    LogHeight = 15,
};

/// A built-in constant. Compares by its type, so that one without a number of its own is equal to itself.
class DOM_API Constant final : public Reflectable<Expression> {
public:
    Constant() = default;
    explicit Constant(ConstantType type) : _type(type) {}

    ConstantType getType() const { return _type; }

    /// Pi, or a full turn in units of 1/60000 of a degree; NaN for a constant that depends on the shape.
    double getValue() const;

    QN_CONCRETE(Expression)
    QN_VALUE(Constant)

private:
    ConstantType _type = ConstantType::Pi;

    BOOST_DESCRIBE_CLASS(Constant, (Expression), (), (), (_type))
};

} // namespace QN::DOM::DrawingFormulas
