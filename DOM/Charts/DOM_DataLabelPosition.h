#pragma once

namespace QN::DOM {

/// Where the label of a point stands. Any other number passes through unchanged.
enum class DataLabelPosition : unsigned char {
    BestFit = 0,
    Bottom = 1,
    Center = 2,
    InsideBase = 3,
    InsideEnd = 4,
    Left = 5,
    OutsideEnd = 6,
    Right = 7,
    Top = 8,
};

} // namespace QN::DOM
