#include "DOM/DOM_DocumentProperties.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(DocumentProperties)

} // namespace QN::DOM
