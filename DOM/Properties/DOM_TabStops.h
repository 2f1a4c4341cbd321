#pragma once

#include <boost/container/map.hpp>

#include "DOM/Properties/DOM_TabStopProps.h"

namespace QN::DOM {

/// The order of tab positions: that of the numbers, with NaN behind them all and every NaN the same position, so that
/// a position from a file, whatever it is, keeps the map in order.
struct TabPositionLess {
    bool operator()(float left, float right) const
    {
        const bool isLeftNumber = left == left;
        const bool isRightNumber = right == right;
        return isLeftNumber && (!isRightNumber || left < right);
    }
};

/// Tab stops by position. Two maps with a NaN position are unequal, as NaNs are.
using TabStops = boost::container::map<float, TabStopProps, TabPositionLess>;

} // namespace QN::DOM
