#include "DOM/Properties/DOM_NumberingLevelStyle.h"

#include "DOM/Properties/DOM_ParaProps.h"
#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "DOM/Properties/DOM_RunProps.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(NumberingLevelStyle)
QN_DEFINE_OVERRIDE(NumberingLevelStyle)
QN_DEFINE_EXCLUDE(NumberingLevelStyle)

} // namespace QN::DOM
