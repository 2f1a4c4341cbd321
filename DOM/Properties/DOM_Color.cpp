#include "DOM/Properties/DOM_Color.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(Color)

} // namespace QN::DOM
