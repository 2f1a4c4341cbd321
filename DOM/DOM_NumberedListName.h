#pragma once

namespace QN::DOM {

/// The predefined list that a list began as. Any other number passes through unchanged.
enum class NumberedListName : unsigned char {
    None = 0,
    FilledCircleBullets = 3,
    HollowCircleBullets = 4,
    FilledSquareBullets = 5,
    FourDiamondBullets = 6,
    HyphenBullets = 7,
    ArrowheadBullets = 8,
    CheckMarkBullets = 9,
    DecimalWithFullStop = 10,
    Outline = 11, ///< each level shows the counters of all levels above it
    DecimalWithParenthesis = 12,
    UpperLetterWithFullStop = 13,
    LowerLetterWithFullStop = 14,
    LowerLetterWithParenthesis = 15,
    UpperRomanWithFullStop = 16,
    LowerRomanWithFullStop = 17,
};

} // namespace QN::DOM
