#pragma once

#include "DOM/Charts/DOM_ScatterChartCommon.h"

namespace QN::DOM {

/// A scatter chart in space; it differs from the flat one in its class only.
class DOM_API Scatter3DChart final : public Reflectable<ScatterChartCommon> {
public:
    Scatter3DChart() = default;
    QN_DEEP_COPY(Scatter3DChart)

    QN_CONCRETE(Chart)
    QN_VALUE(Scatter3DChart)

private:
    BOOST_DESCRIBE_CLASS(Scatter3DChart, (ScatterChartCommon), (), (), ())
};

} // namespace QN::DOM
