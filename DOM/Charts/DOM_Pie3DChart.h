#pragma once

#include "DOM/Charts/DOM_PieChartCommon.h"

namespace QN::DOM {

/// A pie chart in space. It has no angle of the first slice.
class DOM_API Pie3DChart final : public Reflectable<PieChartCommon> {
public:
    Pie3DChart() = default;
    QN_DEEP_COPY(Pie3DChart)

    QN_CONCRETE(Chart)
    QN_VALUE(Pie3DChart)

private:
    BOOST_DESCRIBE_CLASS(Pie3DChart, (PieChartCommon), (), (), ())
};

} // namespace QN::DOM
