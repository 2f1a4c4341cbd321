#pragma once

#include <boost/optional/optional.hpp>

#include <memory>
#include <utility>

#include "DOM/Charts/DOM_Chart.h"
#include "DOM/Charts/DOM_ChartGrouping.h"
#include "DOM/Charts/DOM_ChartLines.h"

namespace QN::DOM {

/// What the flat and the 3D line chart share.
class DOM_API LineChartCommon : public Reflectable<Chart> {
public:
    LineChartCommon& operator=(const LineChartCommon&) = delete;

    boost::optional<ChartGrouping> getGrouping() const { return _grouping; }
    void setGrouping(boost::optional<ChartGrouping> grouping) { _grouping = grouping; }

    /// The lines from the points down to the axis; null for none.
    const ChartLines* getDropLines() const { return _dropLines.get(); }
    ChartLines* getDropLines() { return _dropLines.get(); }
    void setDropLines(std::unique_ptr<ChartLines> dropLines) { _dropLines = std::move(dropLines); }

    /// Compares what is declared here and in `Chart`; `areDeeplyEqual` compares whole charts.
    QN_EQUALITY(LineChartCommon)
    QN_SERIALIZE(LineChartCommon)

protected:
    LineChartCommon() = default;
    LineChartCommon(const LineChartCommon& other);
    LineChartCommon(LineChartCommon&&) noexcept = default;
    LineChartCommon& operator=(LineChartCommon&&) noexcept = default;

private:
    boost::optional<ChartGrouping> _grouping;
    std::unique_ptr<ChartLines> _dropLines;

    BOOST_DESCRIBE_CLASS(LineChartCommon, (Chart), (), (), (_grouping, _dropLines))
};

} // namespace QN::DOM
