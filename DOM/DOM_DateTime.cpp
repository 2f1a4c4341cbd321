#include "DOM/DOM_DateTime.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(DateTime)

} // namespace QN::DOM
