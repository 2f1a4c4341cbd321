#include "DOM/Properties/DOM_PageNumber.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(PageNumber)

} // namespace QN::DOM
