#include "DOM/FormulaSyntaxTree/DOM_String.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

QN_DEFINE_VALUE(String)
QN_DEFINE_CONCRETE(String, Expr)

} // namespace QN::DOM::FormulaSyntaxTree
