#include "DOM/DOM_Run.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(Run)

} // namespace QN::DOM
