#pragma once

#include "DOM/Charts/DOM_Series.h"
#include "Utils/Public/BoolOpt.h"

namespace QN::DOM {

/// A series of a bar chart.
class DOM_API BarSeries final : public Reflectable<Series> {
public:
    BarSeries() = default;
    QN_DEEP_COPY(BarSeries)

    /// Whether bars of negative values are painted inversely. Once set, also to false, it cannot be unset.
    BoolOpt getInvertIfNegative() const { return _invertIfNegative; }
    void setInvertIfNegative(bool invertIfNegative) { _invertIfNegative = invertIfNegative; }

    QN_CONCRETE(Series)
    QN_VALUE(BarSeries)

private:
    BoolOpt _invertIfNegative;

    BOOST_DESCRIBE_CLASS(BarSeries, (Series), (), (), (_invertIfNegative))
};

} // namespace QN::DOM
