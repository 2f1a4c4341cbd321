#pragma once

namespace QN::DOM {

/// Where characters stand about the baseline. Any other number passes through unchanged.
enum class ScriptPosition : unsigned char {
    Baseline = 0,
    Superscript = 1,
    Subscript = 2,
};

} // namespace QN::DOM
