#pragma once

#include "DOM/Charts/DOM_LineChartCommon.h"

namespace QN::DOM {

/// A line chart in space.
class DOM_API Line3DChart final : public Reflectable<LineChartCommon> {
public:
    Line3DChart() = default;
    QN_DEEP_COPY(Line3DChart)

    /// In percent of the depth of a series. It is not bounded.
    unsigned short getGapDepth() const { return _gapDepth; }
    void setGapDepth(unsigned short gapDepth) { _gapDepth = gapDepth; }

    QN_CONCRETE(Chart)
    QN_VALUE(Line3DChart)

private:
    unsigned short _gapDepth = 150;

    BOOST_DESCRIBE_CLASS(Line3DChart, (LineChartCommon), (), (), (_gapDepth))
};

} // namespace QN::DOM
