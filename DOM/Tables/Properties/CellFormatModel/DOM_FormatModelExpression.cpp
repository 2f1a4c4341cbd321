#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelExpression.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::CellFormatModel {

QN_DEFINE_ORDERED_VALUE(Expression)

} // namespace QN::DOM::CellFormatModel
