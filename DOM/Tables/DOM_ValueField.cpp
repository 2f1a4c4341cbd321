#include "DOM/Tables/DOM_ValueField.h"

#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(ValueField)
QN_REGISTER_RELATION(UUIDable, ValueField)

} // namespace QN::DOM
