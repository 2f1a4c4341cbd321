#include "DOM/Properties/DOM_PatternFill.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(PatternFill)
QN_DEFINE_CONCRETE(PatternFill, Fill)

} // namespace QN::DOM
