#include "DOM/Shapes/DOM_AbsoluteAnchor.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(AbsoluteAnchor)

} // namespace QN::DOM
