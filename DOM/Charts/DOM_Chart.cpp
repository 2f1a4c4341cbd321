#include "DOM/Charts/DOM_Chart.h"

#include <memory>
#include <utility>
#include <vector>

#include "DOM/Charts/DOM_Area3DChart.h"
#include "DOM/Charts/DOM_AreaChart.h"
#include "DOM/Charts/DOM_Bar3DChart.h"
#include "DOM/Charts/DOM_BarChart.h"
#include "DOM/Charts/DOM_Line3DChart.h"
#include "DOM/Charts/DOM_LineChart.h"
#include "DOM/Charts/DOM_MakeCompatibleSeries.h"
#include "DOM/Charts/DOM_Pie3DChart.h"
#include "DOM/Charts/DOM_PieChart.h"
#include "DOM/Charts/DOM_Scatter3DChart.h"
#include "DOM/Charts/DOM_ScatterChart.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"
#include "Utils/Public/Ptr/PtrUtils.h"

namespace QN::DOM {

QN_DEFINE_EQUALITY(Chart)
QN_DEFINE_SERIALIZE(Chart)
QN_DEFINE_DEEP_EQUALITY(Chart)

QN_REGISTER_TYPE(AreaChart, "QN::DOM::AreaChart")
QN_REGISTER_TYPE(Area3DChart, "QN::DOM::Area3DChart")
QN_REGISTER_TYPE(BarChart, "QN::DOM::BarChart")
QN_REGISTER_TYPE(Bar3DChart, "QN::DOM::Bar3DChart")
QN_REGISTER_TYPE(LineChart, "QN::DOM::LineChart")
QN_REGISTER_TYPE(Line3DChart, "QN::DOM::Line3DChart")
QN_REGISTER_TYPE(PieChart, "QN::DOM::PieChart")
QN_REGISTER_TYPE(Pie3DChart, "QN::DOM::Pie3DChart")
QN_REGISTER_TYPE(ScatterChart, "QN::DOM::ScatterChart")
QN_REGISTER_TYPE(Scatter3DChart, "QN::DOM::Scatter3DChart")

QN_REGISTER_RELATION(Chart, AreaChartCommon)
QN_REGISTER_RELATION(Chart, BarChartCommon)
QN_REGISTER_RELATION(Chart, LineChartCommon)
QN_REGISTER_RELATION(Chart, PieChartCommon)
QN_REGISTER_RELATION(Chart, ScatterChartCommon)
QN_REGISTER_RELATION(AreaChartCommon, AreaChart)
QN_REGISTER_RELATION(AreaChartCommon, Area3DChart)
QN_REGISTER_RELATION(BarChartCommon, BarChart)
QN_REGISTER_RELATION(BarChartCommon, Bar3DChart)
QN_REGISTER_RELATION(LineChartCommon, LineChart)
QN_REGISTER_RELATION(LineChartCommon, Line3DChart)
QN_REGISTER_RELATION(PieChartCommon, PieChart)
QN_REGISTER_RELATION(PieChartCommon, Pie3DChart)
QN_REGISTER_RELATION(ScatterChartCommon, ScatterChart)
QN_REGISTER_RELATION(ScatterChartCommon, Scatter3DChart)

Chart::Chart(const Chart& other) : Clonable<Chart>(other), Reflectable<>(other)
{
    copyAllMembers(*this, other);
}

void Chart::copyBaseProperties(const Chart& other)
{
    // All that is new is complete before anything old goes: `other` may be this chart, or stand in the text of one of
    // its labels and go with it.
    const std::unique_ptr<Series> prototype = makeCompatibleSeries(*this);
    std::vector<std::unique_ptr<Series>> series;
    series.reserve(other.getLiveSeries().size());
    for (const Series& source : other.getLiveSeries()) {
        prototype->cloneTo(series.emplace_back());
        series.back()->copyBaseProperties(source);
    }

    auto axesIndexes = other._axesIndexes;
    auto groupDataLabel = other._groupDataLabel;
    auto categories = other._categories;
    auto xValues = other._xValues;
    const BoolOpt varyColors = other._varyColors;

    _series = SeriesCollection(std::move(series));
    _axesIndexes = std::move(axesIndexes);
    _groupDataLabel = std::move(groupDataLabel);
    _categories = std::move(categories);
    _xValues = std::move(xValues);
    _varyColors = varyColors;
}

} // namespace QN::DOM
