#pragma once

#include "DOM/Charts/DOM_ChartAxis.h"

namespace QN::DOM {

/// The axis of the series, in a chart in space.
class DOM_API SeriesAxis final : public Reflectable<ChartAxis> {
public:
    SeriesAxis() = default;
    QN_DEEP_COPY(SeriesAxis)

    QN_CONCRETE(ChartAxis)
    QN_VALUE(SeriesAxis)

private:
    BOOST_DESCRIBE_CLASS(SeriesAxis, (ChartAxis), (), (), ())
};

} // namespace QN::DOM
