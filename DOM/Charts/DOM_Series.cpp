#include "DOM/Charts/DOM_Series.h"

#include "DOM/Charts/DOM_AreaSeries.h"
#include "DOM/Charts/DOM_BarSeries.h"
#include "DOM/Charts/DOM_LineSeries.h"
#include "DOM/Charts/DOM_PieSeries.h"
#include "DOM/Charts/DOM_ScatterSeries.h"
#include "DOM/Properties/DOM_RunProps.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_EQUALITY(Series)
QN_DEFINE_SERIALIZE(Series)
QN_DEFINE_DEEP_EQUALITY(Series)

QN_REGISTER_TYPE(AreaSeries, "QN::DOM::AreaSeries")
QN_REGISTER_TYPE(BarSeries, "QN::DOM::BarSeries")
QN_REGISTER_TYPE(LineSeries, "QN::DOM::LineSeries")
QN_REGISTER_TYPE(PieSeries, "QN::DOM::PieSeries")
QN_REGISTER_TYPE(ScatterSeries, "QN::DOM::ScatterSeries")

QN_REGISTER_RELATION(Series, AreaSeries)
QN_REGISTER_RELATION(Series, BarSeries)
QN_REGISTER_RELATION(Series, LineSeries)
QN_REGISTER_RELATION(Series, PieSeries)
QN_REGISTER_RELATION(Series, ScatterSeries)

Series::Series(const Series& other) : Clonable<Series>(other), Reflectable<>(other)
{
    copyAllMembers(*this, other);
}

void Series::copyBaseProperties(const Series& other)
{
    copyAllMembers(*this, other);
    if (_runProps) {
        _runProps = std::make_shared<const RunProps>(*_runProps);
    }
}

} // namespace QN::DOM
