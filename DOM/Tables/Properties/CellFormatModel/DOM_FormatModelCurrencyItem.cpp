#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelCurrencyItem.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::CellFormatModel {

QN_DEFINE_ORDERED_VALUE(CurrencyItem)

} // namespace QN::DOM::CellFormatModel
