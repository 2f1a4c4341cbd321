#pragma once

#include "DOM/Charts/DOM_Chart.h"

namespace QN::DOM {

/// What the flat and the 3D pie chart share: no members.
class DOM_API PieChartCommon : public Reflectable<Chart> {
public:
    PieChartCommon& operator=(const PieChartCommon&) = delete;

    /// Compares what is declared in `Chart`; `areDeeplyEqual` compares whole charts.
    QN_EQUALITY(PieChartCommon)
    QN_SERIALIZE(PieChartCommon)

protected:
    PieChartCommon() = default;
    PieChartCommon(const PieChartCommon&) = default;
    PieChartCommon(PieChartCommon&&) noexcept = default;
    PieChartCommon& operator=(PieChartCommon&&) noexcept = default;

    BOOST_DESCRIBE_CLASS(PieChartCommon, (Chart), (), (), ())
};

} // namespace QN::DOM
