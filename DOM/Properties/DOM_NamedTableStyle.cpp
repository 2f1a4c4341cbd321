#include "DOM/Properties/DOM_NamedTableStyle.h"

#include "DOM/Properties/DOM_ParaProps.h"
#include "DOM/Properties/DOM_RunProps.h"
#include "DOM/Tables/Properties/CellFormatModel/DOM_CellFormat.h"
#include "DOM/Tables/Properties/DOM_CellProps.h"
#include "DOM/Tables/Properties/DOM_ColumnProps.h"
#include "DOM/Tables/Properties/DOM_RowProps.h"
#include "DOM/Tables/Properties/DOM_TableProps.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(NamedTableStyle)

QN_REGISTER_RELATION(UUIDable, NamedTableStyle)

} // namespace QN::DOM
