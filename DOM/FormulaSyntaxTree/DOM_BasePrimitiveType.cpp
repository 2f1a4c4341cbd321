#include "DOM/FormulaSyntaxTree/DOM_BasePrimitiveType.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

QN_DEFINE_SERIALIZE(BasePrimitiveType)

} // namespace QN::DOM::FormulaSyntaxTree
