#pragma once

#include <boost/optional/optional.hpp>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// What of a plot area is placed: the area itself, or the area with its axes and labels. Any other number passes through
/// unchanged, here and below.
enum class ChartLayoutTarget : unsigned char { Inner = 0, Outer = 1 };

/// A position as an offset from the automatic one, or from the edge of the chart.
enum class ChartLayoutPositionUnitType : unsigned char { Factor = 0, Edge = 1 };

/// A size as such, or as the position of the far edge.
enum class ChartLayoutSizeUnitType : unsigned char { Factor = 0, Edge = 1 };

/// Where a plot area, a legend or the like stands. The units of the numbers are what the types say; nothing is
/// interpreted here.
class DOM_API ChartLayout {
public:
    boost::optional<ChartLayoutTarget> getLayoutTarget() const { return _layoutTarget; }
    void setLayoutTarget(boost::optional<ChartLayoutTarget> layoutTarget) { _layoutTarget = layoutTarget; }

    ChartLayoutPositionUnitType getXType() const { return _xType; }
    void setXType(ChartLayoutPositionUnitType xType) { _xType = xType; }

    ChartLayoutPositionUnitType getYType() const { return _yType; }
    void setYType(ChartLayoutPositionUnitType yType) { _yType = yType; }

    ChartLayoutSizeUnitType getWidthType() const { return _widthType; }
    void setWidthType(ChartLayoutSizeUnitType widthType) { _widthType = widthType; }

    ChartLayoutSizeUnitType getHeightType() const { return _heightType; }
    void setHeightType(ChartLayoutSizeUnitType heightType) { _heightType = heightType; }

    boost::optional<double> getX() const { return _x; }
    void setX(boost::optional<double> x) { _x = x; }

    boost::optional<double> getY() const { return _y; }
    void setY(boost::optional<double> y) { _y = y; }

    boost::optional<double> getWidth() const { return _width; }
    void setWidth(boost::optional<double> width) { _width = width; }

    boost::optional<double> getHeight() const { return _height; }
    void setHeight(boost::optional<double> height) { _height = height; }

    QN_VALUE(ChartLayout)

private:
    boost::optional<ChartLayoutTarget> _layoutTarget;
    ChartLayoutPositionUnitType _xType{};
    ChartLayoutPositionUnitType _yType{};
    ChartLayoutSizeUnitType _widthType{};
    ChartLayoutSizeUnitType _heightType{};
    boost::optional<double> _x;
    boost::optional<double> _y;
    boost::optional<double> _width;
    boost::optional<double> _height;

    BOOST_DESCRIBE_CLASS(ChartLayout, (), (), (),
                         (_layoutTarget, _xType, _yType, _widthType, _heightType, _x, _y, _width, _height))
};

} // namespace QN::DOM
