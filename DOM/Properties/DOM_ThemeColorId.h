#pragma once

namespace QN::DOM {

/// A slot of a theme's colour scheme. The default scheme fills the slots from `Dark1` on; a `ColorMap` says which of
/// them the first four stand for. Any other number passes through unchanged.
enum class ThemeColorId : unsigned char {
    Text1 = 0,
    Text2 = 1,
    Background1 = 2,
    Background2 = 3,
    Dark1 = 4,
    Dark2 = 5,
    Light1 = 6,
    Light2 = 7,
    Accent1 = 8,
    Accent2 = 9,
    Accent3 = 10,
    Accent4 = 11,
    Accent5 = 12,
    Accent6 = 13,
    Hyperlink = 14,
    FollowedHyperlink = 15,
};

} // namespace QN::DOM
