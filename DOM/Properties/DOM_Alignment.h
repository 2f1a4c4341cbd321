#pragma once

namespace QN::DOM {

/// How the lines of a paragraph stand between its indents. Any other number passes through unchanged.
enum class Alignment : unsigned char {
    Left = 0,
    Center = 1,
    Right = 2,
    Justify = 3,
    Distribute = 4,
};

} // namespace QN::DOM
