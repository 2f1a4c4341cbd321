#include "DOM/Shapes/DOM_GraphicalObject.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_SERIALIZE(GraphicalObject)

} // namespace QN::DOM
