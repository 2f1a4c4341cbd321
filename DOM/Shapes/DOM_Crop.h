#pragma once

#include <boost/optional/optional.hpp>

#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// How much of each side of a picture is cut off.
class DOM_API Crop {
public:
    boost::optional<double> getLeft() const { return _left; }
    void setLeft(boost::optional<double> left) { _left = left; }

    boost::optional<double> getRight() const { return _right; }
    void setRight(boost::optional<double> right) { _right = right; }

    boost::optional<double> getTop() const { return _top; }
    void setTop(boost::optional<double> top) { _top = top; }

    boost::optional<double> getBottom() const { return _bottom; }
    void setBottom(boost::optional<double> bottom) { _bottom = bottom; }

    QN_ORDERED_VALUE(Crop)

private:
    boost::optional<double> _left;
    boost::optional<double> _right;
    boost::optional<double> _top;
    boost::optional<double> _bottom;

    BOOST_DESCRIBE_CLASS(Crop, (), (), (), (_left, _right, _top, _bottom))
};

QN_DECLARE_ALGEBRA(Crop)

} // namespace QN::DOM
