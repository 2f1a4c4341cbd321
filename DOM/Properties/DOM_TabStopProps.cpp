#include "DOM/Properties/DOM_TabStopProps.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(TabStopProps)

std::partial_ordering TabStopProps::compare(const TabStopProps& other, NanOrder nanOrder) const
{
    if (_type != other._type) {
        return _type <=> other._type;
    }
    if (_leader != other._leader) {
        return _leader <=> other._leader;
    }
    const auto byTabStopChar = compareDeeply(_tabStopChar, other._tabStopChar, nanOrder);
    return byTabStopChar != 0 ? byTabStopChar : compareDeeply(_leaderChar, other._leaderChar, nanOrder);
}

} // namespace QN::DOM
