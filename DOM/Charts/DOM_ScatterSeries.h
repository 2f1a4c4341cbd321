#pragma once

#include <boost/optional/optional.hpp>

#include <utility>

#include "DOM/Charts/DOM_ChartMarker.h"
#include "DOM/Charts/DOM_Series.h"

namespace QN::DOM {

/// A series of a scatter chart.
class DOM_API ScatterSeries final : public Reflectable<Series> {
public:
    ScatterSeries() = default;
    QN_DEEP_COPY(ScatterSeries)

    /// Whether the line is smoothed between the points.
    boost::optional<bool> getInterpolation() const { return _interpolation; }
    void setInterpolation(boost::optional<bool> interpolation) { _interpolation = interpolation; }

    const ChartMarker& getMarker() const { return _marker; }
    void setMarker(ChartMarker marker) { _marker = std::move(marker); }

    QN_CONCRETE(Series)
    QN_VALUE(ScatterSeries)

private:
    boost::optional<bool> _interpolation;
    ChartMarker _marker;

    BOOST_DESCRIBE_CLASS(ScatterSeries, (Series), (), (), (_interpolation, _marker))
};

} // namespace QN::DOM
