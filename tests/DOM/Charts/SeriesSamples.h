#pragma once

#include <memory>
#include <string>

#include "DOM/Charts/ChartSamples.h"
#include "DOM/Charts/DOM_AreaSeries.h"
#include "DOM/Charts/DOM_BarSeries.h"
#include "DOM/Charts/DOM_LineSeries.h"
#include "DOM/Charts/DOM_PieSeries.h"
#include "DOM/Charts/DOM_ScatterSeries.h"

/// Series for the tests of what holds them.

namespace QN::Test {

/// The text of the members of `Series` with their defaults.
inline constexpr const char* DefaultSeriesJson =
    R"({"_idx":0,"_order":0,"_name":{"hasValue":false},"_values":[],"_groupDataLabel":{"hasValue":false},)"
    R"("_dataLabels":[],"_dataPoints":[],"_graphicProps":{"hasValue":false},"_runProps":{"ptr_wrapper":{"id":0}}})";

/// The series has the defaults of its family's root and `keys`, the text of what its own class adds after those.
template <class T>
void expectDefaultSeries(const std::string& name, const std::string& keys)
{
    const T series;
    EXPECT_EQ(series.getIdx(), 0U);
    EXPECT_EQ(series.getOrder(), 0U);
    EXPECT_FALSE(series.getName());
    EXPECT_TRUE(series.getValues().empty());
    EXPECT_FALSE(series.getGroupDataLabel());
    EXPECT_TRUE(series.getDataLabels().empty());
    EXPECT_TRUE(series.getDataPoints().empty());
    EXPECT_FALSE(series.getGraphicProps());
    EXPECT_EQ(series.getRunProps(), nullptr);
    expectInFamily<DOM::Series>(series, "QN::DOM::" + name,
                                std::string(R"({"value0":)") + DefaultSeriesJson + "," + keys + "}");
}

/// A series of which every member of the root is set.
template <class T>
T makeSeries()
{
    T series;
    series.setIdx(3);
    series.setOrder(4);
    series.setName(makeFormula());
    series.getValues().push_back(makeFormula());
    series.setGroupDataLabel(DOM::GroupDataLabel());
    series.getDataLabels().push_back(std::make_unique<DOM::DataLabel>());
    series.getDataLabels().push_back(nullptr);
    series.getDataPoints().push_back(std::make_unique<DOM::DataPoint>());
    series.setGraphicProps(makePaint());
    series.setRunPorps(makeRunProps(true));
    return series;
}

} // namespace QN::Test
