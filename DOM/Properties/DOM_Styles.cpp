#include "DOM/Properties/DOM_Styles.h"

#include "DOM/PredefinedStyles/DOM_PredefinedStylesUtils.h"
#include "DOM/Properties/DOM_NamedTextStyle.h"
#include "DOM/Properties/DOM_ParaProps.h"
#include "DOM/Properties/DOM_RunProps.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(Styles)

UUID Styles::getHyperlinkStyleUUID() const
{
    for (const NamedTextStyle& style : _textStyles) {
        if (resolveNamedStyleType(style) == PredefinedStyleName::Hyperlink) {
            return style.getUUID();
        }
    }
    return {};
}

} // namespace QN::DOM
