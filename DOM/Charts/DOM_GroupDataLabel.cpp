#include "DOM/Charts/DOM_GroupDataLabel.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(GroupDataLabel)

} // namespace QN::DOM
