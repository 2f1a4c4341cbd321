#pragma once

namespace QN::DOM {

/// How a counter is written: of list levels, pages and fields. Any other number passes through unchanged.
enum class NumberFormatType : unsigned char {
    Decimal = 0,
    UpperRoman = 1,
    LowerRoman = 2,
    UpperLetter = 3,
    LowerLetter = 4,
    Bullet = 5, ///< no counter: a glyph
};

} // namespace QN::DOM
