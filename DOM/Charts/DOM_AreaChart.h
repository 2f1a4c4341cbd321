#pragma once

#include "DOM/Charts/DOM_AreaChartCommon.h"

namespace QN::DOM {

/// A flat area chart.
class DOM_API AreaChart final : public Reflectable<AreaChartCommon> {
public:
    AreaChart() = default;
    QN_DEEP_COPY(AreaChart)

    QN_CONCRETE(Chart)
    QN_VALUE(AreaChart)

private:
    BOOST_DESCRIBE_CLASS(AreaChart, (AreaChartCommon), (), (), ())
};

} // namespace QN::DOM
