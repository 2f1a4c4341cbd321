#include "DOM/Shapes/DOM_TableOffset.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(TableOffset)

} // namespace QN::DOM
