#include "DOM/DOM_TextWithTombstones.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_DEEP_COPY(TextWithTombstones)
QN_DEFINE_VALUE(TextWithTombstones)

} // namespace QN::DOM
