#pragma once

#include <boost/optional/optional.hpp>

#include "DOM/Charts/DOM_BarChartCommon.h"

namespace QN::DOM {

/// The body of a bar. Any other number passes through unchanged.
enum class ChartShape : unsigned char {
    Cone = 0,
    ConeToMax = 1,
    Box = 2,
    Cylinder = 3,
    Pyramid = 4,
    PyramidToMax = 5,
};

/// A bar chart in space.
class DOM_API Bar3DChart final : public Reflectable<BarChartCommon> {
public:
    Bar3DChart() = default;
    QN_DEEP_COPY(Bar3DChart)

    /// In percent of the depth of a bar. It is not bounded.
    unsigned short getGapDepth() const { return _gapDepth; }
    void setGapDepth(unsigned short gapDepth) { _gapDepth = gapDepth; }

    boost::optional<ChartShape> getChartShape() const { return _chartShape; }
    void setChartShape(boost::optional<ChartShape> chartShape) { _chartShape = chartShape; }

    QN_CONCRETE(Chart)
    QN_VALUE(Bar3DChart)

private:
    unsigned short _gapDepth = 150;
    boost::optional<ChartShape> _chartShape;

    BOOST_DESCRIBE_CLASS(Bar3DChart, (BarChartCommon), (), (), (_gapDepth, _chartShape))
};

} // namespace QN::DOM
