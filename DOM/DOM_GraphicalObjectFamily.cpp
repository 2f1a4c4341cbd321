#include "DOM/Charts/DOM_ChartSpace.h"
#include "DOM/Shapes/DOM_GraphicalObject.h"
#include "DOM/Shapes/DOM_Picture.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

/// What knows each kind, apart from the root that each kind is built on.
namespace QN::DOM {

QN_DEFINE_DEEP_EQUALITY(GraphicalObject)

QN_REGISTER_TYPE(Picture, "QN::DOM::Picture")
QN_REGISTER_TYPE(ChartSpace, "QN::DOM::ChartSpace")

QN_REGISTER_RELATION(GraphicalObject, Picture)
QN_REGISTER_RELATION(GraphicalObject, ChartSpace)

} // namespace QN::DOM
