#pragma once

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// What the list of effects of a theme's `FormatScheme` consists of. It holds nothing yet, and all effects are equal.
class DOM_API Effect {
public:
    QN_ORDERED_VALUE(Effect)

    BOOST_DESCRIBE_CLASS(Effect, (), (), (), ())
};

} // namespace QN::DOM
