#include "DOM/Properties/DOM_PageProps.h"

#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "DOM/Shapes/DOM_Insets.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(PageProps)
QN_DEFINE_ALGEBRA(PageProps)

} // namespace QN::DOM
