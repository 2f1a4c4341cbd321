#pragma once

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// Any other number passes through unchanged.
enum class ChartAxisLabelsPosition : unsigned char { NextTo = 0, High = 1, Low = 2, None = 3 };

/// The labels at the tick marks of an axis.
class DOM_API ChartAxisLabels {
public:
    ChartAxisLabelsPosition getPosition() const { return _position; }
    void setPosition(ChartAxisLabelsPosition position) { _position = position; }

    QN_VALUE(ChartAxisLabels)

private:
    ChartAxisLabelsPosition _position{};

    BOOST_DESCRIBE_CLASS(ChartAxisLabels, (), (), (), (_position))
};

} // namespace QN::DOM
