#include "DOM/Charts/DOM_ChartAxis.h"

#include "DOM/Charts/DOM_CategoryAxis.h"
#include "DOM/Charts/DOM_DateAxis.h"
#include "DOM/Charts/DOM_SeriesAxis.h"
#include "DOM/Charts/DOM_ValueAxis.h"
#include "DOM/Properties/DOM_RunProps.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_EQUALITY(ChartAxis)
QN_DEFINE_SERIALIZE(ChartAxis)
QN_DEFINE_DEEP_EQUALITY(ChartAxis)

QN_REGISTER_TYPE(CategoryAxis, "QN::DOM::CategoryAxis")
QN_REGISTER_TYPE(SeriesAxis, "QN::DOM::SeriesAxis")
QN_REGISTER_TYPE(ValueAxis, "QN::DOM::ValueAxis")
QN_REGISTER_TYPE(DateAxis, "QN::DOM::DateAxis")

QN_REGISTER_RELATION(ChartAxis, CategoryAxis)
QN_REGISTER_RELATION(ChartAxis, SeriesAxis)
QN_REGISTER_RELATION(ChartAxis, ValueAxis)
QN_REGISTER_RELATION(ChartAxis, DateAxis)

ChartAxis::ChartAxis(const ChartAxis& other) : Clonable<ChartAxis>(other), Reflectable<>(other)
{
    copyAllMembers(*this, other);
}

} // namespace QN::DOM
