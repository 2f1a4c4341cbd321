#pragma once

#include <boost/optional/optional.hpp>

#include "DOM/Charts/DOM_Series.h"

namespace QN::DOM {

/// A series of a pie chart.
class DOM_API PieSeries final : public Reflectable<Series> {
public:
    PieSeries() = default;
    QN_DEEP_COPY(PieSeries)

    /// How far the slices stand off the centre.
    boost::optional<unsigned int> getExplosion() const { return _explosion; }
    void setExplosion(boost::optional<unsigned int> explosion) { _explosion = explosion; }

    QN_CONCRETE(Series)
    QN_VALUE(PieSeries)

private:
    boost::optional<unsigned int> _explosion;

    BOOST_DESCRIBE_CLASS(PieSeries, (Series), (), (), (_explosion))
};

} // namespace QN::DOM
