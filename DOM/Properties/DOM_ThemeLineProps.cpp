#include "DOM/Properties/DOM_ThemeLineProps.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(ThemeLineProps)
QN_DEFINE_CONCRETE(ThemeLineProps, LineProps)

} // namespace QN::DOM
