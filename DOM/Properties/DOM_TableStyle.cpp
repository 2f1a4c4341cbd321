#include "DOM/Properties/DOM_TableStyle.h"

#include "DOM/Properties/DOM_ParaProps.h"
#include "DOM/Properties/DOM_RunProps.h"
#include "DOM/Tables/Properties/DOM_CellProps.h"
#include "DOM/Tables/Properties/DOM_TableProps.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(TableStyle)

} // namespace QN::DOM
