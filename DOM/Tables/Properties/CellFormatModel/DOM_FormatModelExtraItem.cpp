#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelExtraItem.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::CellFormatModel {

QN_DEFINE_ORDERED_VALUE(ExtraItem)

} // namespace QN::DOM::CellFormatModel
