#include "DOM/PredefinedStyles/DOM_PredefinedTableStylesUtils.h"

#include "DOM/PredefinedStyles/DOM_FailNotImplemented.h"
#include "DOM/Properties/DOM_NamedTableStyle.h"

namespace QN::DOM {

std::string makePredefinedTableStyleName(PredefinedStyleName /*styleType*/)
{
    QN_FAIL_NOT_IMPLEMENTED();
}

UUID makePredefinedTableStyleUUID(PredefinedStyleName /*styleType*/)
{
    QN_FAIL_NOT_IMPLEMENTED();
}

NamedTableStyle makePredefinedTableStyle(PredefinedStyleName /*styleType*/)
{
    QN_FAIL_NOT_IMPLEMENTED();
}

UUID getPredefinedTableStyleUUID(const Styles& /*styles*/, PredefinedStyleName /*styleType*/)
{
    QN_FAIL_NOT_IMPLEMENTED();
}

void appendPredefinedTableStyles(Styles& /*styles*/)
{
    QN_FAIL_NOT_IMPLEMENTED();
}

} // namespace QN::DOM
