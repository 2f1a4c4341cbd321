#include "DOM/DOM_NumListMarker.h"

#include "DOM/Shapes/DOM_Frame.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(NumListMarker)

} // namespace QN::DOM
