#include "DOM/Tables/DOM_RowColIDGenerator.h"

#include <boost/random/uniform_int_distribution.hpp>

#include <limits>

#include "Utils/Public/Environment.h"

namespace QN::DOM {

std::uint64_t RowColIDGenerator::generate()
{
    static const boost::random::uniform_int_distribution<std::uint64_t> distribution(
        2147483647, std::numeric_limits<std::uint64_t>::max());
    return Environment::processWithRandomNumberGenerator<std::uint64_t>(
        [](Environment::RandomNumberGenerator& generator) { return distribution(generator); });
}

} // namespace QN::DOM
