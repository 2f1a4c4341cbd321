#include "DOM/DOM_Note.h"

#include "DOM/DOM_Document.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_DEEP_COPY_WITH_BASE(Note, Reflectable<UUIDable>)
QN_DEFINE_VALUE(Note)

QN_REGISTER_RELATION(UUIDable, Note)

const Note* getNote(const Document& document, const UUID& uuid)
{
    return document.getNotes().find(uuid);
}

} // namespace QN::DOM
