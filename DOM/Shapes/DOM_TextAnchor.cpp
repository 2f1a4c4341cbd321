#include "DOM/Shapes/DOM_TextAnchor.h"

#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(TextAnchor)
QN_DEFINE_OVERRIDE(TextAnchor)
QN_DEFINE_EXCLUDE(TextAnchor)
QN_DEFINE_INTERSECT(TextAnchor)

} // namespace QN::DOM
