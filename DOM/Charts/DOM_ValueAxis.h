#pragma once

#include <boost/optional/optional.hpp>

#include "DOM/Charts/DOM_ChartAxis.h"

namespace QN::DOM {

/// An axis of numbers.
class DOM_API ValueAxis final : public Reflectable<ChartAxis> {
public:
    ValueAxis() = default;
    QN_DEEP_COPY(ValueAxis)

    /// The distance between two marks; automatic when absent.
    boost::optional<double> getMajorUnit() const { return _majorUnit; }
    void setMajorUnit(boost::optional<double> majorUnit) { _majorUnit = majorUnit; }

    boost::optional<double> getMinorUnit() const { return _minorUnit; }
    void setMinorUnit(boost::optional<double> minorUnit) { _minorUnit = minorUnit; }

    QN_CONCRETE(ChartAxis)
    QN_VALUE(ValueAxis)

private:
    boost::optional<double> _majorUnit;
    boost::optional<double> _minorUnit;

    BOOST_DESCRIBE_CLASS(ValueAxis, (ChartAxis), (), (), (_majorUnit, _minorUnit))
};

} // namespace QN::DOM
