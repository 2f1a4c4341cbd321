#include "DOM/Tables/DOM_TopBottomConditionalFormatOperator.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(TopBottomConditionalFormatOperator)

} // namespace QN::DOM
