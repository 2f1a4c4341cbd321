#include "DOM/Properties/DOM_SectionProps.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(SectionProps)

} // namespace QN::DOM
