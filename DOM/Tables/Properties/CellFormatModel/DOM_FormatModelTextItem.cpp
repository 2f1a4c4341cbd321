#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelTextItem.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::CellFormatModel {

QN_DEFINE_ORDERED_VALUE(TextItem)

} // namespace QN::DOM::CellFormatModel
