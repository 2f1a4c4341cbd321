#include "DOM/Charts/DOM_DataLabel.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(DataLabel)
QN_DEFINE_DEEP_COPY(DataLabel)

} // namespace QN::DOM
