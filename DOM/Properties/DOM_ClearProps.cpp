#include "DOM/Properties/DOM_ClearProps.h"

#include "DOM/DOM_Paragraph.h"
#include "DOM/DOM_Run.h"
#include "Utils/Public/Ptr/PtrUtils.h"

namespace QN::DOM {

void clearAllProps(Run& run)
{
    run.getSharedStyle().reset();
}

void clearAllPropsExceptNumRef(Paragraph& paragraph)
{
    paragraph.getSharedStyle().reset();
    paragraph.getSharedParaMarkStyle().reset();
    for (auto& run : paragraph.getRuns()) {
        clearAllProps(derefRequired(run));
    }
}

void clearAllProps(Paragraph& paragraph)
{
    clearAllPropsExceptNumRef(paragraph);
    paragraph.getNumRef().reset();
}

} // namespace QN::DOM
