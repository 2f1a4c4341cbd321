#pragma once

#include "Utils/Public/Export.h"

namespace QN::DOM {

/// What a factory makes of an empty style.
enum class DOM_API StyleSharingPolicy : unsigned char {
    EmptyIsNull = 0,   ///< a null handle
    EmptyIsShared = 1, ///< a shared style like any other
};

} // namespace QN::DOM
