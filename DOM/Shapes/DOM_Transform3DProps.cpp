#include "DOM/Shapes/DOM_Transform3DProps.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(Transform3DProps)

} // namespace QN::DOM
