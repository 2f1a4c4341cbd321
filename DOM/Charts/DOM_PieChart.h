#pragma once

#include <boost/optional/optional.hpp>

#include "DOM/Charts/DOM_PieChartCommon.h"

namespace QN::DOM {

/// A flat pie chart.
class DOM_API PieChart final : public Reflectable<PieChartCommon> {
public:
    PieChart() = default;
    QN_DEEP_COPY(PieChart)

    /// Where the first slice begins. In a file it stands under "_firstSliceAng".
    boost::optional<double> getFirstSliceAngle() const { return _firstSliceAng; }
    void setFirstSliceAngle(boost::optional<double> angle) { _firstSliceAng = angle; }

    QN_CONCRETE(Chart)
    QN_VALUE(PieChart)

private:
    boost::optional<double> _firstSliceAng;

    BOOST_DESCRIBE_CLASS(PieChart, (PieChartCommon), (), (), (_firstSliceAng))
};

} // namespace QN::DOM
