#include "DOM/Properties/DOM_ParaProps.h"

#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "DOM/Tables/Properties/DOM_BordersProps.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(ParaProps)
QN_DEFINE_ALGEBRA(ParaProps)

} // namespace QN::DOM
