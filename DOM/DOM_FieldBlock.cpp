#include "DOM/DOM_FieldBlock.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_DEEP_COPY_WITH_BASE(FieldBlock, Reflectable<Block>)
QN_DEFINE_VALUE(FieldBlock)
QN_DEFINE_CONCRETE(FieldBlock, Block)

} // namespace QN::DOM
