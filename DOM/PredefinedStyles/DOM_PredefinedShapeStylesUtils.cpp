#include "DOM/PredefinedStyles/DOM_PredefinedShapeStylesUtils.h"

#include "DOM/PredefinedStyles/DOM_FailNotImplemented.h"
#include "DOM/Properties/DOM_NamedShapeStyle.h"

namespace QN::DOM {

std::string makePredefinedShapeStyleName(PredefinedStyleName /*styleType*/)
{
    QN_FAIL_NOT_IMPLEMENTED();
}

UUID makePredefinedShapeStyleUUID(PredefinedStyleName /*styleType*/)
{
    QN_FAIL_NOT_IMPLEMENTED();
}

NamedShapeStyle makePredefinedShapeStyle(PredefinedStyleName /*styleType*/)
{
    QN_FAIL_NOT_IMPLEMENTED();
}

UUID getPredefinedShapeStyleUUID(const Styles& /*styles*/, PredefinedStyleName /*styleType*/)
{
    QN_FAIL_NOT_IMPLEMENTED();
}

void appendPredefinedShapeStyles(Styles& /*styles*/)
{
    QN_FAIL_NOT_IMPLEMENTED();
}

} // namespace QN::DOM
