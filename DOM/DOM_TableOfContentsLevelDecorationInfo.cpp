#include "DOM/DOM_TableOfContentsLevelDecorationInfo.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(TableOfContentsLevelDecorationInfo)

const TableOfContentsLevelDecorationInfo& getDefaultTableOfContentsLevelStyleInfo()
{
    static const TableOfContentsLevelDecorationInfo Default(UUID(), TabStopLeader::Hyphen, true);
    return Default;
}

} // namespace QN::DOM
