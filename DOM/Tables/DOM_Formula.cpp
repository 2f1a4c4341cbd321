#include "DOM/Tables/DOM_Formula.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(Formula)
QN_DEFINE_DEEP_COPY(Formula)

} // namespace QN::DOM
