#include "DOM/Properties/DOM_LineSpacing.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(LineSpacing)

} // namespace QN::DOM
