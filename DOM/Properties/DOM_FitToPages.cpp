#include "DOM/Properties/DOM_FitToPages.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(FitToPages)

} // namespace QN::DOM
