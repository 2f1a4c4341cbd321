#include "DOM/Tables/Properties/DOM_TableSettings.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(TableSettings)

} // namespace QN::DOM
