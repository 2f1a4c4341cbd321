#include "DOM/Tables/Properties/CellFormatModel/LocalizedExpressions/DOM_FormatModelDateTimePatternItem.h"

#include <boost/functional/hash.hpp>

namespace QN::DOM::CellFormatModel {

std::size_t hash_value(const DateTimePatternItem& item)
{
    std::size_t seed = 0;
    boost::hash_combine(seed, static_cast<std::uint8_t>(item.token));
    boost::hash_combine(seed, item.props);
    return seed;
}

} // namespace QN::DOM::CellFormatModel
