#include "DOM/Shapes/DOM_OneCellAnchor.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(OneCellAnchor)

} // namespace QN::DOM
