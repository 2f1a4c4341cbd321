#pragma once

#include "Utils/Public/BaseRuntimeError.h"
#include "Utils/Public/Export.h"

namespace QN {

/// A number that does not fit. The message is "bad numeric conversion: positive overflow" or "... negative overflow".
class DOM_API BadNumCastError : public BaseRuntimeError {
public:
    using BaseRuntimeError::BaseRuntimeError;
};

/// Converts a number to another type and throws `BadNumCastError` where the value does not fit. A `char` takes ASCII
/// only, 0 to 127. Defined for the pairs below.
template <class To, class From>
To numCast(From value);

extern template DOM_API long numCast<long, unsigned long>(unsigned long value);
extern template DOM_API unsigned long numCast<unsigned long, long>(long value);
extern template DOM_API unsigned long numCast<unsigned long, int>(int value);
extern template DOM_API char numCast<char, char32_t>(char32_t value);

} // namespace QN
