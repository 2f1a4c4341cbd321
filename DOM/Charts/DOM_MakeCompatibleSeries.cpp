#include "DOM/Charts/DOM_MakeCompatibleSeries.h"

#include "DOM/Charts/DOM_Area3DChart.h"
#include "DOM/Charts/DOM_AreaChart.h"
#include "DOM/Charts/DOM_AreaSeries.h"
#include "DOM/Charts/DOM_Bar3DChart.h"
#include "DOM/Charts/DOM_BarChart.h"
#include "DOM/Charts/DOM_BarSeries.h"
#include "DOM/Charts/DOM_Line3DChart.h"
#include "DOM/Charts/DOM_LineChart.h"
#include "DOM/Charts/DOM_LineSeries.h"
#include "DOM/Charts/DOM_Pie3DChart.h"
#include "DOM/Charts/DOM_PieChart.h"
#include "DOM/Charts/DOM_PieSeries.h"
#include "DOM/Charts/DOM_Scatter3DChart.h"
#include "DOM/Charts/DOM_ScatterChart.h"
#include "DOM/Charts/DOM_ScatterSeries.h"

namespace QN::DOM {

namespace {

struct MakeCompatibleSeries {
    std::unique_ptr<Series> operator()(const AreaChartCommon& /*chart*/) const
    {
        return std::make_unique<AreaSeries>();
    }
    std::unique_ptr<Series> operator()(const BarChartCommon& /*chart*/) const
    {
        return std::make_unique<BarSeries>();
    }
    std::unique_ptr<Series> operator()(const LineChartCommon& /*chart*/) const
    {
        return std::make_unique<LineSeries>();
    }
    std::unique_ptr<Series> operator()(const PieChartCommon& /*chart*/) const
    {
        return std::make_unique<PieSeries>();
    }
    std::unique_ptr<Series> operator()(const ScatterChartCommon& /*chart*/) const
    {
        return std::make_unique<ScatterSeries>();
    }
};

} // namespace

std::unique_ptr<Series> makeCompatibleSeries(const Chart& chart)
{
    return visit<std::unique_ptr<Series>>(chart, MakeCompatibleSeries{});
}

} // namespace QN::DOM
