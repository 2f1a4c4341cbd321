#pragma once

#include <stdexcept>

#include "Utils/Public/Export.h"

namespace QN {

/// The base of the model's own exceptions: bad values from outside, which a caller can survive.
class DOM_API BaseRuntimeError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace QN
