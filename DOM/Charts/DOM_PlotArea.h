#pragma once

#include <boost/optional/optional.hpp>

#include <memory>
#include <utility>
#include <vector>

#include "DOM/Charts/DOM_Chart.h"
#include "DOM/Charts/DOM_ChartAxis.h"
#include "DOM/Charts/DOM_ChartGraphicProps.h"
#include "DOM/Charts/DOM_ChartLayout.h"
#include "DOM/Charts/DOM_ChartSurface.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/ReadonlyVector.h"

namespace QN::DOM {

/// The charts, of one kind or of several, and the axes that they share. Charts and axes refer to axes by position, so the
/// order of the axes is data. Copies are deep but for the run properties of series, axes and titles, which are
/// immutable and shared.
class DOM_API PlotArea {
public:
    PlotArea() = default;
    QN_DEEP_COPY(PlotArea)

    ReadonlyPtrVector<Chart> getCharts() const { return _charts; }
    std::vector<std::unique_ptr<Chart>>& getCharts() { return _charts; }

    const boost::optional<ChartLayout>& getLayout() const { return _layout; }
    void setLayout(boost::optional<ChartLayout> layout) { _layout = std::move(layout); }

    const boost::optional<ChartSurface>& getWall() const { return _wall; }
    void setWall(boost::optional<ChartSurface> wall) { _wall = std::move(wall); }

    const boost::optional<ChartGraphicProps>& getGraphicProps() const { return _graphicProps; }
    void setGraphicProps(boost::optional<ChartGraphicProps> graphicProps)
    {
        _graphicProps = std::move(graphicProps);
    }

    ReadonlyPtrVector<ChartAxis> getAxes() const { return _axes; }
    std::vector<std::unique_ptr<ChartAxis>>& getAxes() { return _axes; }

    QN_VALUE(PlotArea)

private:
    std::vector<std::unique_ptr<Chart>> _charts;
    boost::optional<ChartLayout> _layout;
    boost::optional<ChartSurface> _wall;
    boost::optional<ChartGraphicProps> _graphicProps;
    std::vector<std::unique_ptr<ChartAxis>> _axes;

    BOOST_DESCRIBE_CLASS(PlotArea, (), (), (), (_charts, _layout, _wall, _graphicProps, _axes))
};

} // namespace QN::DOM
