#include "DOM/Tables/DOM_AboveAverageConditionalFormatOperator.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(AboveAverageConditionalFormatOperator)

} // namespace QN::DOM
