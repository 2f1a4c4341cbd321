#include "DOM/Shapes/DOM_Picture.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(Picture)
QN_DEFINE_CONCRETE(Picture, GraphicalObject)

} // namespace QN::DOM
