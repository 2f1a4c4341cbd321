#include "DOM/FormulaSyntaxTree/DOM_BaseReferenceExpr.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

QN_DEFINE_VALUE(BaseReferenceExpr)

} // namespace QN::DOM::FormulaSyntaxTree
