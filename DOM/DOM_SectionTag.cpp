#include "DOM/DOM_SectionTag.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(SectionTag)
QN_DEFINE_CONCRETE(SectionTag, Block)

} // namespace QN::DOM
