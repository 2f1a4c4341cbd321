#include "DOM/Properties/DOM_Hyperlink.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(Hyperlink)

} // namespace QN::DOM
