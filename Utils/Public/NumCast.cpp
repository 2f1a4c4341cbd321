#include "Utils/Public/NumCast.h"

#include <boost/numeric/conversion/cast.hpp>

#include <type_traits>

namespace QN {

template <class To, class From>
To numCast(From value)
{
    // Whether a plain char is signed differs between platforms; what fits must not.
    using Target = std::conditional_t<std::is_same_v<To, char>, signed char, To>;
    try {
        return static_cast<To>(boost::numeric_cast<Target>(value));
    } catch (const boost::numeric::bad_numeric_cast& failure) {
        throw BadNumCastError(failure.what());
    }
}

template DOM_API long numCast<long, unsigned long>(unsigned long value);
template DOM_API unsigned long numCast<unsigned long, long>(long value);
template DOM_API unsigned long numCast<unsigned long, int>(int value);
template DOM_API char numCast<char, char32_t>(char32_t value);

} // namespace QN
