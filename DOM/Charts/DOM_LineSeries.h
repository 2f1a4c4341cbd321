#pragma once

#include <boost/optional/optional.hpp>

#include <utility>

#include "DOM/Charts/DOM_ChartMarker.h"
#include "DOM/Charts/DOM_Series.h"

namespace QN::DOM {

/// A series of a line chart.
class DOM_API LineSeries final : public Reflectable<Series> {
public:
    LineSeries() = default;
    QN_DEEP_COPY(LineSeries)

    /// Whether the line is smoothed between the points.
    boost::optional<bool> getInterpolation() const { return _interpolation; }
    void setInterpolation(boost::optional<bool> interpolation) { _interpolation = interpolation; }

    const ChartMarker& getMarker() const { return _marker; }
    void setMarker(ChartMarker marker) { _marker = std::move(marker); }

    QN_CONCRETE(Series)
    QN_VALUE(LineSeries)

private:
    boost::optional<bool> _interpolation;
    ChartMarker _marker;

    BOOST_DESCRIBE_CLASS(LineSeries, (Series), (), (), (_interpolation, _marker))
};

} // namespace QN::DOM
