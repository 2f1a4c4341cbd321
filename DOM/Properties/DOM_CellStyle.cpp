#include "DOM/Properties/DOM_CellStyle.h"

#include "DOM/Properties/DOM_ParaProps.h"
#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "DOM/Properties/DOM_RunProps.h"
#include "DOM/Tables/Properties/CellFormatModel/DOM_CellFormat.h"
#include "DOM/Tables/Properties/DOM_CellProps.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(CellStyle)
QN_DEFINE_OVERRIDE(CellStyle)
QN_DEFINE_EXCLUDE(CellStyle)
QN_DEFINE_REBASE(CellStyle)

} // namespace QN::DOM
