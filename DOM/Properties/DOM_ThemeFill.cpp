#include "DOM/Properties/DOM_ThemeFill.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(ThemeFill)
QN_DEFINE_CONCRETE(ThemeFill, Fill)

} // namespace QN::DOM
