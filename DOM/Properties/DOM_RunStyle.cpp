#include "DOM/Properties/DOM_RunStyle.h"

#include "DOM/DOM_TrackedObject.h"
#include "DOM/Properties/DOM_Hyperlink.h"
#include "DOM/Properties/DOM_RunProps.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(RunStyle)

} // namespace QN::DOM
