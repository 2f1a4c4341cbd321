#pragma once

#include <boost/optional/optional.hpp>

#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// Distances from the four sides of something: margins, padding.
class DOM_API Insets {
public:
    boost::optional<float> getLeft() const { return _left; }
    void setLeft(boost::optional<float> left) { _left = left; }

    boost::optional<float> getRight() const { return _right; }
    void setRight(boost::optional<float> right) { _right = right; }

    boost::optional<float> getTop() const { return _top; }
    void setTop(boost::optional<float> top) { _top = top; }

    boost::optional<float> getBottom() const { return _bottom; }
    void setBottom(boost::optional<float> bottom) { _bottom = bottom; }

    QN_ORDERED_VALUE(Insets)

private:
    boost::optional<float> _left;
    boost::optional<float> _right;
    boost::optional<float> _top;
    boost::optional<float> _bottom;

    BOOST_DESCRIBE_CLASS(Insets, (), (), (), (_left, _right, _top, _bottom))
};

QN_DECLARE_ALGEBRA(Insets)

} // namespace QN::DOM
