#include "DOM/Shapes/DOM_TwoCellAnchor.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(TwoCellAnchor)

} // namespace QN::DOM
