#include "DOM/Charts/DOM_ChartGraphicProps.h"

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

QN_DEFINE_VALUE(ChartGraphicProps)
QN_DEFINE_DEEP_COPY(ChartGraphicProps)

} // namespace QN::DOM
