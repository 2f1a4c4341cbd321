#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelNumberItem.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::CellFormatModel {

QN_DEFINE_ORDERED_VALUE(NumberItem)

} // namespace QN::DOM::CellFormatModel
