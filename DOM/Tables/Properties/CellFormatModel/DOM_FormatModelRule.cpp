#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelRule.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::CellFormatModel {

QN_DEFINE_ORDERED_VALUE(Rule)

} // namespace QN::DOM::CellFormatModel
