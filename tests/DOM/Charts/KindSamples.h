#pragma once

#include <boost/optional/optional_io.hpp>

#include <memory>
#include <string>

#include "DOM/Charts/DOM_Area3DChart.h"
#include "DOM/Charts/DOM_AreaChart.h"
#include "DOM/Charts/DOM_Bar3DChart.h"
#include "DOM/Charts/DOM_BarChart.h"
#include "DOM/Charts/DOM_Line3DChart.h"
#include "DOM/Charts/DOM_LineChart.h"
#include "DOM/Charts/DOM_Pie3DChart.h"
#include "DOM/Charts/DOM_PieChart.h"
#include "DOM/Charts/DOM_Scatter3DChart.h"
#include "DOM/Charts/DOM_ScatterChart.h"
#include "DOM/Charts/SeriesSamples.h"

/// Charts of every kind for the tests of what holds them.

namespace QN::Test {

/// The text of the members of `Chart` with their defaults.
inline constexpr const char* DefaultChartJson =
    R"({"_series":{"_elements":[],"_tombstones":{"_tombstones":[]}},"_axesIndexes":[],)"
    R"("_groupDataLabel":{"hasValue":false},"_categories":{"hasValue":false},"_xValues":{"hasValue":false},)"
    R"("_varyColors":{"value":-1}})";

/// The text of a chart with the defaults of `Chart`: the keys of its common base and its own keys, either may be empty.
inline std::string makeChartJson(const std::string& commonKeys, const std::string& keys)
{
    return std::string(R"({"value0":{"value0":)") + DefaultChartJson + (commonKeys.empty() ? "" : ",") +
           commonKeys + "}" + (keys.empty() ? "" : ",") + keys + "}";
}

template <class T>
void expectDefaultChart(const std::string& name, const std::string& commonKeys, const std::string& keys)
{
    T chart;
    EXPECT_TRUE(std::as_const(chart).getLiveSeries().empty());
    EXPECT_TRUE(chart.getLiveSeries().empty());
    EXPECT_EQ(chart.getSeries().getTombstones().getTombstonesCount(), 0U);
    EXPECT_TRUE(chart.getAxisIndexes().empty());
    EXPECT_FALSE(chart.getGroupDataLabel());
    EXPECT_FALSE(chart.getCategories());
    EXPECT_FALSE(chart.getXValues());
    EXPECT_FALSE(chart.getVaryColors());
    expectInFamily<DOM::Chart>(chart, "QN::DOM::" + name, makeChartJson(commonKeys, keys));
}

/// A chart of which every member of the root is set.
template <class T, class SeriesOfChart>
T makeChart()
{
    T chart;
    chart.getLiveSeries().push_back(std::make_unique<SeriesOfChart>(makeSeries<SeriesOfChart>()));
    chart.getLiveSeries().push_back(std::make_unique<SeriesOfChart>());
    chart.getSeries().getTombstones().replaceWithTombstone(CollaborationUtils::IndexIncludingTombstones(5));
    chart.getAxisIndexes() = {1, 0};
    chart.setGroupDataLabel(DOM::GroupDataLabel());
    chart.setCategories(std::vector<DOM::Formula>(1, makeFormula()));
    chart.setXValues(std::vector<DOM::Formula>());
    chart.setVaryColors(true);
    return chart;
}

} // namespace QN::Test
