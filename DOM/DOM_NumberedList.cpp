#include "DOM/DOM_NumberedList.h"

#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_DEEP_COPY_WITH_BASE(NumberedList, Reflectable<UUIDable>)
QN_DEFINE_VALUE(NumberedList)

QN_REGISTER_RELATION(UUIDable, NumberedList)

} // namespace QN::DOM
