#include "DOM/Properties/DOM_ParagraphStyle.h"

#include "DOM/DOM_TrackedObject.h"
#include "DOM/Properties/DOM_ParaProps.h"
#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "DOM/Properties/DOM_RunProps.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_ORDERED_VALUE(ParagraphStyle)

void override(ParagraphStyle& target, const ParagraphStyle& other)
{
    auto paraProps = target.getParaProps();
    override(paraProps, other.getParaProps());
    target.setParaProps(std::move(paraProps));

    auto runProps = target.getRunProps();
    override(runProps, other.getRunProps());
    target.setRunProps(std::move(runProps));

    target.setParentUUID(other.getParentUUID());
}

void exclude(ParagraphStyle& target, const ParagraphStyle& other)
{
    auto paraProps = target.getParaProps();
    exclude(paraProps, other.getParaProps());
    target.setParaProps(std::move(paraProps));

    auto runProps = target.getRunProps();
    exclude(runProps, other.getRunProps());
    target.setRunProps(std::move(runProps));
}

} // namespace QN::DOM
