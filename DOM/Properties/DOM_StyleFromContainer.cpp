#include "DOM/Properties/DOM_StyleFromContainer.h"

#include "DOM/DOM_Paragraph.h"

namespace QN::DOM {

const ParagraphStyle& getStyleFromContainer(const Paragraph& paragraph)
{
    return paragraph.getStyle();
}

const NamedTextStyle& getStyleFromContainer(const NamedTextStyle& style)
{
    return style;
}

} // namespace QN::DOM
