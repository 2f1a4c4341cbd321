#pragma once

namespace QN::DOM {

/// How the series of an area or line chart stand to each other. Any other number passes through unchanged.
enum class ChartGrouping : unsigned char { PercentStacked = 0, Standard = 1, Stacked = 2 };

} // namespace QN::DOM
