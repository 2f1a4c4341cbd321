#include "DOM/FormulaSyntaxTree/DOM_Bool.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

QN_DEFINE_VALUE(Bool)
QN_DEFINE_CONCRETE(Bool, Expr)

} // namespace QN::DOM::FormulaSyntaxTree
