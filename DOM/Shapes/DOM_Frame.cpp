#include "DOM/Shapes/DOM_Frame.h"

#include "DOM/Shapes/DOM_Crop.h"
#include "DOM/Shapes/DOM_GraphicalObject.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

void Frame::setGraphicalObject(std::unique_ptr<GraphicalObject> object)
{
    _graphicalObject = std::move(object);
}

QN_DEFINE_VALUE(Frame)

} // namespace QN::DOM
