#include "DOM/DOM_ColorScheme.h"

#include "Utils/Public/Assert.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

const Color& ColorScheme::getColor(ThemeColorId id) const
{
    const auto iter = _colors.find(id);
    QN_CONTRACT(iter != _colors.end(), "DOM/DOM_ColorScheme", 39, "iter != _colors.end()");
    return iter->second;
}

void ColorScheme::setColor(ThemeColorId id, Color color)
{
    _colors.insert_or_assign(id, std::move(color));
}

QN_DEFINE_VALUE(ColorScheme)

} // namespace QN::DOM
