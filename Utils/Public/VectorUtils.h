#pragma once

#include <cstddef>

namespace QN {

/// The iterator to a place of a vector, which may be its end.
template <class Vector>
auto iteratorAt(Vector& vector, std::size_t place)
{
    return vector.begin() + static_cast<std::ptrdiff_t>(place);
}

} // namespace QN
