#pragma once

#include "DOM/Charts/DOM_Series.h"
#include "Utils/Public/BoolOpt.h"

namespace QN::DOM {

/// A series of an area chart.
class DOM_API AreaSeries final : public Reflectable<Series> {
public:
    AreaSeries() = default;
    QN_DEEP_COPY(AreaSeries)

    QN_CONCRETE(Series)
    QN_VALUE(AreaSeries)

private:
    /// Comes from files and goes back to them; nothing else reaches it.
    BoolOpt _smooth;

    BOOST_DESCRIBE_CLASS(AreaSeries, (Series), (), (), (_smooth))
};

} // namespace QN::DOM
