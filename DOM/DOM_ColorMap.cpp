#include "DOM/DOM_ColorMap.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

boost::optional<ThemeColorId> ColorMap::getMapping(ThemeColorId id) const
{
    const auto iter = _map.find(id);
    if (iter == _map.end()) {
        return boost::none;
    }
    return iter->second;
}

void ColorMap::setMapping(ThemeColorId id, ThemeColorId target)
{
    _map.insert_or_assign(id, target);
}

QN_DEFINE_VALUE(ColorMap)

} // namespace QN::DOM
