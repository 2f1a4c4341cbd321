#include "DOM/DOM_NumberingLevel.h"

#include "DOM/DOM_NumListMarker.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(NumberingLevel)

} // namespace QN::DOM
