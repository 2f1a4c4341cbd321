#include "DOM/DOM_PagesCountInfo.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(PagesCountInfo)

} // namespace QN::DOM
