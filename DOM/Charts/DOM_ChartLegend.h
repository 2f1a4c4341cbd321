#pragma once

#include <boost/optional/optional.hpp>

#include <memory>
#include <utility>
#include <vector>

#include "DOM/Charts/DOM_ChartGraphicProps.h"
#include "DOM/Charts/DOM_ChartLayout.h"
#include "DOM/Charts/DOM_ChartLegendEntry.h"
#include "Utils/Public/BoolOpt.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/ReadonlyVector.h"

namespace QN::DOM {

class RunProps;

/// The side of the chart. Any other number passes through unchanged.
enum class ChartLegendPosition : unsigned char { Bottom = 0, TopRight = 1, Left = 2, Right = 3, Top = 4 };

/// The legend of a chart. Copies are deep but for the run properties, which are immutable and shared; equality looks
/// into them.
class DOM_API ChartLegend {
public:
    ChartLegend() = default;
    QN_DEEP_COPY(ChartLegend)

    const boost::optional<ChartLayout>& getLayout() const { return _layout; }
    void setLayout(boost::optional<ChartLayout> layout) { _layout = std::move(layout); }

    boost::optional<ChartLegendPosition> getPosition() const { return _position; }
    void setPosition(boost::optional<ChartLegendPosition> position) { _position = position; }

    const boost::optional<ChartGraphicProps>& getGraphicProps() const { return _graphicProps; }
    void setGraphicProps(boost::optional<ChartGraphicProps> graphicProps)
    {
        _graphicProps = std::move(graphicProps);
    }

    /// Whether the legend may stand on the plot area.
    BoolOpt getOverlay() const { return _overlay; }
    void setOverlay(BoolOpt overlay) { _overlay = overlay; }

    /// Sparse: only for rows that differ from the legend as a whole.
    ReadonlyPtrVector<ChartLegendEntry> getEntries() const { return _entries; }
    std::vector<std::unique_ptr<ChartLegendEntry>>& getEntries() { return _entries; }

    std::shared_ptr<const RunProps> getRunProps() const { return _runProps; }
    void setRunProps(std::shared_ptr<const RunProps> runProps) { _runProps = std::move(runProps); }

    QN_VALUE(ChartLegend)

private:
    boost::optional<ChartLayout> _layout;
    boost::optional<ChartLegendPosition> _position;
    boost::optional<ChartGraphicProps> _graphicProps;
    BoolOpt _overlay;
    std::vector<std::unique_ptr<ChartLegendEntry>> _entries;
    std::shared_ptr<const RunProps> _runProps;

    BOOST_DESCRIBE_CLASS(ChartLegend, (), (), (),
                         (_layout, _position, _graphicProps, _overlay, _entries, _runProps))
};

} // namespace QN::DOM
