#include "DOM/Shapes/DOM_Effect.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(Effect)

} // namespace QN::DOM
