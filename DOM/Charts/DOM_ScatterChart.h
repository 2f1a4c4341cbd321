#pragma once

#include "DOM/Charts/DOM_ScatterChartCommon.h"

namespace QN::DOM {

/// A flat scatter chart.
class DOM_API ScatterChart final : public Reflectable<ScatterChartCommon> {
public:
    ScatterChart() = default;
    QN_DEEP_COPY(ScatterChart)

    QN_CONCRETE(Chart)
    QN_VALUE(ScatterChart)

private:
    BOOST_DESCRIBE_CLASS(ScatterChart, (ScatterChartCommon), (), (), ())
};

} // namespace QN::DOM
