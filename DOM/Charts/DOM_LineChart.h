#pragma once

#include <boost/optional/optional.hpp>

#include "DOM/Charts/DOM_LineChartCommon.h"

namespace QN::DOM {

/// A flat line chart.
class DOM_API LineChart final : public Reflectable<LineChartCommon> {
public:
    LineChart() = default;
    QN_DEEP_COPY(LineChart)

    /// Whether the lines are smoothed between the points.
    boost::optional<bool> getInterpolation() const { return _interpolation; }
    void setInterpolation(boost::optional<bool> interpolation) { _interpolation = interpolation; }

    QN_CONCRETE(Chart)
    QN_VALUE(LineChart)

private:
    boost::optional<bool> _interpolation;

    BOOST_DESCRIBE_CLASS(LineChart, (LineChartCommon), (), (), (_interpolation))
};

} // namespace QN::DOM
