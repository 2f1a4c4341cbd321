#include "DOM/FormulaSyntaxTree/DOM_Empty.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

QN_DEFINE_VALUE(Empty)
QN_DEFINE_CONCRETE(Empty, Expr)

} // namespace QN::DOM::FormulaSyntaxTree
