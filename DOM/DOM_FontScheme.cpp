#include "DOM/DOM_FontScheme.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(FontScheme)

} // namespace QN::DOM
