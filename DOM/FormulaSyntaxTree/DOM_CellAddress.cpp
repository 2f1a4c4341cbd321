#include "DOM/FormulaSyntaxTree/DOM_CellAddress.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

QN_DEFINE_VALUE(CellAddress)
QN_DEFINE_CONCRETE(CellAddress, Expr)

} // namespace QN::DOM::FormulaSyntaxTree
