#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "DOM/Charts/DOM_ChartSpace.h"
#include "DOM/Charts/DOM_PieChart.h"
#include "DOM/Charts/DOM_PieSeries.h"
#include "DOM/DOM_DrawingRun.h"
#include "DOM/DOM_Paragraph.h"

/// Charts in the texts of charts.

namespace QN::Test {

/// A text that shows the object inline.
inline DOM::TextWithTombstones showInline(std::unique_ptr<DOM::GraphicalObject> object)
{
    auto run = std::make_unique<DOM::DrawingRun>();
    run->getFrame().setGraphicalObject(std::move(object));
    auto paragraph = std::make_unique<DOM::Paragraph>();
    paragraph->getRuns().push_back(std::move(run));
    std::vector<std::unique_ptr<DOM::Block>> blocks;
    blocks.push_back(std::move(paragraph));
    return DOM::TextWithTombstones(std::move(blocks));
}

/// A chart space in whose title the object is shown.
inline std::unique_ptr<DOM::ChartSpace> putIntoTitle(std::unique_ptr<DOM::GraphicalObject> inner)
{
    auto space = std::make_unique<DOM::ChartSpace>();
    space->setTitle(std::make_unique<DOM::ChartTitle>());
    space->getTitle()->getText() = DOM::ChartTitle::Text(showInline(std::move(inner)));
    return space;
}

/// A chart space with one pie chart of one series, in whose only label the object is shown.
inline std::unique_ptr<DOM::ChartSpace> putIntoLabel(std::unique_ptr<DOM::GraphicalObject> inner)
{
    auto label = std::make_unique<DOM::DataLabel>();
    label->setText(std::make_unique<DOM::TextWithTombstones>(showInline(std::move(inner))));
    auto series = std::make_unique<DOM::PieSeries>();
    series->getDataLabels().push_back(std::move(label));
    auto chart = std::make_unique<DOM::PieChart>();
    chart->getLiveSeries().push_back(std::move(series));
    auto space = std::make_unique<DOM::ChartSpace>();
    space->getPlotArea().getCharts().push_back(std::move(chart));
    return space;
}

} // namespace QN::Test
