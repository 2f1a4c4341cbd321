#pragma once

#include "DOM/Charts/DOM_AreaChartCommon.h"

namespace QN::DOM {

/// An area chart in space.
class DOM_API Area3DChart final : public Reflectable<AreaChartCommon> {
public:
    Area3DChart() = default;
    QN_DEEP_COPY(Area3DChart)

    /// In percent of the depth of a series. It is not bounded.
    unsigned short getGapDepth() const { return _gapDepth; }
    void setGapDepth(unsigned short gapDepth) { _gapDepth = gapDepth; }

    QN_CONCRETE(Chart)
    QN_VALUE(Area3DChart)

private:
    unsigned short _gapDepth = 150;

    BOOST_DESCRIBE_CLASS(Area3DChart, (AreaChartCommon), (), (), (_gapDepth))
};

} // namespace QN::DOM
