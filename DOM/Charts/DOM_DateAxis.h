#pragma once

#include <boost/optional/optional.hpp>

#include "DOM/Charts/DOM_ChartAxis.h"

namespace QN::DOM {

/// Any other number passes through unchanged.
enum class ChartTimeUnit : unsigned char { Days = 0, Months = 1, Years = 2 };

/// An axis of dates.
class DOM_API DateAxis final : public Reflectable<ChartAxis> {
public:
    DateAxis() = default;
    QN_DEEP_COPY(DateAxis)

    /// The distance between two marks, in their time unit; automatic when absent.
    boost::optional<double> getMajorUnit() const { return _majorUnit; }
    void setMajorUnit(boost::optional<double> majorUnit) { _majorUnit = majorUnit; }

    boost::optional<double> getMinorUnit() const { return _minorUnit; }
    void setMinorUnit(boost::optional<double> minorUnit) { _minorUnit = minorUnit; }

    /// The least unit that the axis tells apart.
    boost::optional<ChartTimeUnit> getBaseTimeUnit() const { return _baseTimeUnit; }
    void setBaseTimeUnit(boost::optional<ChartTimeUnit> timeUnit) { _baseTimeUnit = timeUnit; }

    boost::optional<ChartTimeUnit> getMajorTimeUnit() const { return _majorTimeUnit; }
    void setMajorTimeUnit(boost::optional<ChartTimeUnit> timeUnit) { _majorTimeUnit = timeUnit; }

    boost::optional<ChartTimeUnit> getMinorTimeUnit() const { return _minorTimeUnit; }
    void setMinorTimeUnit(boost::optional<ChartTimeUnit> timeUnit) { _minorTimeUnit = timeUnit; }

    QN_CONCRETE(ChartAxis)
    QN_VALUE(DateAxis)

private:
    boost::optional<double> _majorUnit;
    boost::optional<double> _minorUnit;
    boost::optional<ChartTimeUnit> _baseTimeUnit;
    boost::optional<ChartTimeUnit> _majorTimeUnit;
    boost::optional<ChartTimeUnit> _minorTimeUnit;

    BOOST_DESCRIBE_CLASS(DateAxis, (ChartAxis), (), (),
                         (_majorUnit, _minorUnit, _baseTimeUnit, _majorTimeUnit, _minorTimeUnit))
};

} // namespace QN::DOM
