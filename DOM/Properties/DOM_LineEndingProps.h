#pragma once

#include <boost/optional/optional.hpp>

#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// The shape at the end of a line. Any other number passes through unchanged.
enum class EndingStyle : unsigned char {
    None = 0,
    Triangle = 1,
    Stealth = 2,
    Diamond = 3,
    Oval = 4,
    Arrow = 5
};

/// What stands at one end of a line.
class DOM_API LineEndingProps {
public:
    boost::optional<float> getWidth() const { return _width; }
    void setWidth(boost::optional<float> width) { _width = width; }

    boost::optional<EndingStyle> getEndingStyle() const { return _endingStyle; }
    void setEndingStyle(boost::optional<EndingStyle> style) { _endingStyle = style; }

    QN_ORDERED_VALUE(LineEndingProps)

private:
    boost::optional<float> _width;
    boost::optional<EndingStyle> _endingStyle;

    BOOST_DESCRIBE_CLASS(LineEndingProps, (), (), (), (_width, _endingStyle))
};

QN_DECLARE_ALGEBRA(LineEndingProps)

} // namespace QN::DOM
