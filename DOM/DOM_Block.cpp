#include "DOM/DOM_Block.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_SERIALIZE(Block)

} // namespace QN::DOM
