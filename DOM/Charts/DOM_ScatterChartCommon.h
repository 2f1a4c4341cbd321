#pragma once

#include <boost/optional/optional.hpp>

#include "DOM/Charts/DOM_Chart.h"

namespace QN::DOM {

/// What joins and marks the points. Any other number passes through unchanged.
enum class ChartScatterType : unsigned char {
    None = 0,
    Line = 1,
    LineMarker = 2,
    Marker = 3,
    Smooth = 4,
    SmoothMarker = 5,
};

/// What the flat and the 3D scatter chart share.
class DOM_API ScatterChartCommon : public Reflectable<Chart> {
public:
    ScatterChartCommon& operator=(const ScatterChartCommon&) = delete;

    ChartScatterType getType() const { return _type; }
    void setType(ChartScatterType type) { _type = type; }

    /// Whether the lines are smoothed between the points.
    boost::optional<bool> getInterpolation() const { return _interpolation; }
    void setInterpolation(boost::optional<bool> interpolation) { _interpolation = interpolation; }

    /// Compares what is declared here and in `Chart`; `areDeeplyEqual` compares whole charts.
    QN_EQUALITY(ScatterChartCommon)
    QN_SERIALIZE(ScatterChartCommon)

protected:
    ScatterChartCommon() = default;
    ScatterChartCommon(const ScatterChartCommon&) = default;
    ScatterChartCommon(ScatterChartCommon&&) noexcept = default;
    ScatterChartCommon& operator=(ScatterChartCommon&&) noexcept = default;

private:
    ChartScatterType _type = ChartScatterType::Marker;
    boost::optional<bool> _interpolation;

    BOOST_DESCRIBE_CLASS(ScatterChartCommon, (Chart), (), (), (_type, _interpolation))
};

} // namespace QN::DOM
