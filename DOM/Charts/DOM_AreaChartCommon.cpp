#include "DOM/Charts/DOM_AreaChartCommon.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(AreaChartCommon)

AreaChartCommon::AreaChartCommon(const AreaChartCommon& other) : Reflectable<Chart>(other)
{
    copyAllMembers(*this, other);
}

} // namespace QN::DOM
