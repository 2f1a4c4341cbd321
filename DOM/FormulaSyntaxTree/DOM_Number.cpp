#include "DOM/FormulaSyntaxTree/DOM_Number.h"

#include "DOM/Tables/Properties/CellFormatModel/DOM_CellFormat.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

QN_DEFINE_VALUE(Number)
QN_DEFINE_CONCRETE(Number, Expr)

} // namespace QN::DOM::FormulaSyntaxTree
