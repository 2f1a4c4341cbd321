#include "DOM/DOM_PredefinedEntities.h"

#include "DOM/DOM_Document.h"
#include "DOM/DOM_PredefinedNumLists.h"
#include "DOM/PredefinedStyles/DOM_PredefinedTextStylesUtils.h"

namespace QN::DOM {

void appendPredefinedEntities(Document& document)
{
    appendPredefinedNumLists(document.getSharedObjectFactory(), document.getNumLists());
    appendPredefinedTextStyles(document.getStyles());
}

} // namespace QN::DOM
