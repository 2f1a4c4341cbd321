#include "DOM/FormulaSyntaxTree/DOM_Error.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

QN_DEFINE_VALUE(Error)
QN_DEFINE_CONCRETE(Error, Expr)

} // namespace QN::DOM::FormulaSyntaxTree
