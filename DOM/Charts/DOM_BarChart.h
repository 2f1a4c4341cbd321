#pragma once

#include <memory>
#include <vector>

#include "DOM/Charts/DOM_BarChartCommon.h"
#include "DOM/Charts/DOM_ChartLines.h"

namespace QN::DOM {

/// A flat bar chart. Only it has an overlap and series lines.
class DOM_API BarChart final : public Reflectable<BarChartCommon> {
public:
    BarChart() = default;
    QN_DEEP_COPY(BarChart)

    /// In percent of a bar's width; negative for a gap.
    signed char getOverlap() const { return _overlap; }
    void setOverlap(signed char overlap) { _overlap = overlap; }

    /// The lines that join the bars of one series.
    ReadonlyPtrVector<ChartLines> getSeriesLines() const { return _seriesLines; }
    std::vector<std::unique_ptr<ChartLines>>& getSeriesLines() { return _seriesLines; }

    QN_CONCRETE(Chart)
    QN_VALUE(BarChart)

private:
    signed char _overlap = 0;
    std::vector<std::unique_ptr<ChartLines>> _seriesLines;

    BOOST_DESCRIBE_CLASS(BarChart, (BarChartCommon), (), (), (_overlap, _seriesLines))
};

} // namespace QN::DOM
