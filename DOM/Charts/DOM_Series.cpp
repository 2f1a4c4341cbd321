#include "DOM/Charts/DOM_Series.h"

#include <memory>
#include <utility>

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
    // The copy is complete before anything old goes: `other` may be this series, or stand in the text of one of its
    // labels and go with it.
    std::unique_ptr<Series> copy;
    other.cloneTo(copy);
    if (copy->_runProps) {
        copy->_runProps = std::make_shared<const RunProps>(*copy->_runProps);
    }
    *this = std::move(*copy);
}

} // namespace QN::DOM
