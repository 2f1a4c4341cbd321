#include "DOM/Tables/DOM_BinaryConditionalFormatOperator.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(BinaryConditionalFormatOperator)
QN_DEFINE_DEEP_COPY(BinaryConditionalFormatOperator)

} // namespace QN::DOM
