#pragma once

namespace QN::DOM {

/// The styles that every document knows. Each has a fixed name and a fixed `UUID`. Any other number passes through
/// unchanged until its name or its `UUID` is asked for.
enum class PredefinedStyleName : unsigned char {
    Normal = 0,
    Heading1 = 1,
    Heading2 = 2,
    Heading3 = 3,
    Heading4 = 4,
    Heading5 = 5,
    Heading6 = 6,
    Heading7 = 7,
    Heading8 = 8,
    Heading9 = 9,
    Heading10 = 10,
    Title = 11,
    Subtitle = 12,
    HeaderAndFooter = 13,
    Footnote = 14,
    Contents1 = 15,
    Contents2 = 16,
    Contents3 = 17,
    Contents4 = 18,
    Contents5 = 19,
    Contents6 = 20,
    Contents7 = 21,
    Contents8 = 22,
    Contents9 = 23,
    Contents10 = 24,
    Hyperlink = 25,
};

} // namespace QN::DOM
