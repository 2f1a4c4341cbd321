#include "DOM/Charts/DOM_DataPoint.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(DataPoint)

} // namespace QN::DOM
