#include "DOM/DOM_PageReferenceInfo.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(PageReferenceInfo)

} // namespace QN::DOM
