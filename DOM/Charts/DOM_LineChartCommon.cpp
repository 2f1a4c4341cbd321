#include "DOM/Charts/DOM_LineChartCommon.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(LineChartCommon)

LineChartCommon::LineChartCommon(const LineChartCommon& other) : Reflectable<Chart>(other)
{
    copyAllMembers(*this, other);
}

} // namespace QN::DOM
