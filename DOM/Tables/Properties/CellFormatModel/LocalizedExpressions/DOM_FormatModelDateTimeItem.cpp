#include "DOM/Tables/Properties/CellFormatModel/LocalizedExpressions/DOM_FormatModelDateTimeItem.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::CellFormatModel {

bool DateTimeItem::isTime() const
{
    constexpr std::uint32_t TimeTypes = 0x3FFC3;
    const auto type = static_cast<unsigned>(_type);
    return type < 32 && ((TimeTypes >> type) & 1U) != 0;
}

QN_DEFINE_ORDERED_VALUE(DateTimeItem)

} // namespace QN::DOM::CellFormatModel
