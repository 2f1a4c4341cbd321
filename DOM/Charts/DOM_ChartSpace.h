#pragma once

#include <boost/optional/optional.hpp>

#include <memory>
#include <utility>

#include "DOM/Charts/DOM_ChartGraphicProps.h"
#include "DOM/Charts/DOM_ChartLegend.h"
#include "DOM/Charts/DOM_ChartTitle.h"
#include "DOM/Charts/DOM_PlotArea.h"
#include "DOM/Shapes/DOM_GraphicalObject.h"
#include "DOM/Shapes/DOM_Transform3DProps.h"
#include "Utils/Public/Size2D.h"

namespace QN::DOM {

class RunProps;

/// A chart as an object that a frame shows: what it says, with its data left in the cells that its formulas refer to. No
/// layout is computed. Copies are deep but for the run properties, which are immutable and shared; equality looks into
/// them.
class DOM_API ChartSpace final : public Reflectable<GraphicalObject> {
public:
    ChartSpace() = default;
    QN_DEEP_COPY(ChartSpace)

    /// Whether a title that the chart would have by itself has been removed.
    bool getAutoTitleDeleted() const { return _autoTitleDeleted; }
    void setAutoTitleDeleted(bool deleted) { _autoTitleDeleted = deleted; }

    /// Null for none, here and for the legend.
    const ChartTitle* getTitle() const { return _title.get(); }
    ChartTitle* getTitle() { return _title.get(); }
    void setTitle(std::unique_ptr<ChartTitle> title) { _title = std::move(title); }

    const ChartLegend* getLegend() const { return _legend.get(); }
    ChartLegend* getLegend() { return _legend.get(); }
    void setLegend(std::unique_ptr<ChartLegend> legend) { _legend = std::move(legend); }

    const PlotArea& getPlotArea() const { return _plotArea; }
    PlotArea& getPlotArea() { return _plotArea; }

    const boost::optional<ChartGraphicProps>& getGraphicProps() const { return _graphicProps; }
    void setGraphicProps(boost::optional<ChartGraphicProps> graphicProps)
    {
        _graphicProps = std::move(graphicProps);
    }

    const Size2D<float>& getExtent() const { return _extent; }
    void setExtent(const Size2D<float>& extent) { _extent = extent; }

    /// Null for a flat chart.
    const Transform3DProps* getTransform3DProps() const { return _transform3DProps.get(); }
    Transform3DProps* getTransform3DProps() { return _transform3DProps.get(); }
    void setTransform3DProps(std::unique_ptr<Transform3DProps> props)
    {
        _transform3DProps = std::move(props);
    }

    std::shared_ptr<const RunProps> getRunProps() const { return _runProps; }
    void setRunProps(std::shared_ptr<const RunProps> runProps) { _runProps = std::move(runProps); }

    QN_CONCRETE(GraphicalObject)
    QN_VALUE(ChartSpace)

private:
    bool _autoTitleDeleted = false;
    std::unique_ptr<ChartTitle> _title;
    std::unique_ptr<ChartLegend> _legend;
    PlotArea _plotArea;
    boost::optional<ChartGraphicProps> _graphicProps;
    Size2D<float> _extent;
    std::unique_ptr<Transform3DProps> _transform3DProps;
    std::shared_ptr<const RunProps> _runProps;

    BOOST_DESCRIBE_CLASS(ChartSpace, (GraphicalObject), (), (),
                         (_autoTitleDeleted, _title, _legend, _plotArea, _graphicProps, _extent,
                          _transform3DProps, _runProps))
};

} // namespace QN::DOM
