#pragma once

#include "DOM/Charts/DOM_Chart.h"

namespace QN::DOM {

/// Standing columns or lying bars. Any other number passes through unchanged, here and below.
enum class BarChartDirection : unsigned char { Column = 0, Bar = 1 };

/// How the bars of the series stand to each other.
enum class BarChartGrouping : unsigned char { PercentStacked = 0, Stacked = 1, Clustered = 2, Standard = 3 };

/// What the flat and the 3D bar chart share.
class DOM_API BarChartCommon : public Reflectable<Chart> {
public:
    BarChartCommon& operator=(const BarChartCommon&) = delete;

    BarChartDirection getDirection() const { return _direction; }
    void setDirection(BarChartDirection direction) { _direction = direction; }

    BarChartGrouping getGrouping() const { return _grouping; }
    void setGrouping(BarChartGrouping grouping) { _grouping = grouping; }

    /// In percent of a bar's width. It is not bounded.
    unsigned short getGapWidth() const { return _gapWidth; }
    void setGapWidth(unsigned short gapWidth) { _gapWidth = gapWidth; }

    /// Compares what is declared here and in `Chart`; `areDeeplyEqual` compares whole charts.
    QN_EQUALITY(BarChartCommon)
    QN_SERIALIZE(BarChartCommon)

protected:
    BarChartCommon() = default;
    BarChartCommon(const BarChartCommon&) = default;
    BarChartCommon(BarChartCommon&&) noexcept = default;
    BarChartCommon& operator=(BarChartCommon&&) noexcept = default;

private:
    BarChartDirection _direction{};
    BarChartGrouping _grouping = BarChartGrouping::Clustered;
    unsigned short _gapWidth = 150;

    BOOST_DESCRIBE_CLASS(BarChartCommon, (Chart), (), (), (_direction, _grouping, _gapWidth))
};

} // namespace QN::DOM
