#pragma once

#include <memory>

#include "Utils/Public/Export.h"

namespace QN::DOM {

class Chart;
class Series;

/// A default series of the class that suits the chart.
DOM_API std::unique_ptr<Series> makeCompatibleSeries(const Chart& chart);

} // namespace QN::DOM
