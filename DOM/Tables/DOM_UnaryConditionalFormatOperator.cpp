#include "DOM/Tables/DOM_UnaryConditionalFormatOperator.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(UnaryConditionalFormatOperator)
QN_DEFINE_DEEP_COPY(UnaryConditionalFormatOperator)

} // namespace QN::DOM
