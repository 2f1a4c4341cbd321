#include "DOM/DOM_Comment.h"

#include "DOM/DOM_Document.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_DEEP_COPY_WITH_BASE(Comment, Reflectable<UUIDable>)
QN_DEFINE_VALUE(Comment)

QN_REGISTER_RELATION(UUIDable, Comment)

const Comment* getComment(const Document& document, const UUID& uuid)
{
    return document.getComments().find(uuid);
}

} // namespace QN::DOM
