#pragma once

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// How the value of a `LineSpacing` is meant. Any other number passes through unchanged.
enum class LineSpacingRule : unsigned char {
    Multiple = 0, ///< a multiple of the height of a single line
    Exactly = 1,  ///< a length that neither shrinks nor grows with the line
    AtLeast = 2,  ///< a length that grows with the line
};

/// The distance from line to line within a paragraph. Orders by value, then by rule.
class DOM_API LineSpacing {
public:
    LineSpacing() = default;
    LineSpacing(float value, const LineSpacingRule& rule) : _value(value), _rule(rule) {}

    float getValue() const { return _value; }
    void setValue(float value) { _value = value; }

    LineSpacingRule getRule() const { return _rule; }
    void setRule(LineSpacingRule rule) { _rule = rule; }

    QN_ORDERED_VALUE(LineSpacing)

private:
    float _value = 0.0F;
    LineSpacingRule _rule = LineSpacingRule::Multiple;

    BOOST_DESCRIBE_CLASS(LineSpacing, (), (), (), (_value, _rule))
};

} // namespace QN::DOM
