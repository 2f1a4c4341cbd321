#include "DOM/DOM_Theme.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(Theme)

} // namespace QN::DOM
