#pragma once

#include <boost/optional/optional.hpp>
#include <boost/variant/variant.hpp>

#include <memory>
#include <utility>
#include <vector>

#include "DOM/Charts/DOM_ChartGraphicProps.h"
#include "DOM/DOM_TextWithTombstones.h"
#include "DOM/Tables/DOM_Formula.h"
#include "Utils/Public/BoolOpt.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

class RunProps;

/// The flow of a text. Any other number passes through unchanged.
enum class ChartTextDirection : unsigned char {
    Horizontal = 0,
    Vertical = 1,
    Vertical270 = 2,
    WordArtVertical = 3,
    EastAsianVertical = 4,
    MongolianVertical = 5,
    WordArtVerticalRtl = 6,
};

/// The title of a chart or of an axis. Copies are deep but for the run properties, which are immutable and shared;
/// equality looks into them.
class DOM_API ChartTitle {
public:
    /// Literal text, or formulas that refer to the cells that hold it.
    using Text = boost::variant<TextWithTombstones, std::vector<Formula>>;

    ChartTitle() = default;
    QN_DEEP_COPY(ChartTitle)

    const boost::optional<Text>& getText() const { return _text; }
    boost::optional<Text>& getText() { return _text; }

    boost::optional<float> getX() const { return _x; }
    void setX(boost::optional<float> x) { _x = x; }

    boost::optional<float> getY() const { return _y; }
    void setY(boost::optional<float> y) { _y = y; }

    /// Whether the title may stand on the plot area.
    BoolOpt getOverlay() const { return _overlay; }
    void setOverlay(BoolOpt overlay) { _overlay = overlay; }

    boost::optional<double> getRotation() const { return _rotation; }
    void setRotation(boost::optional<double> rotation) { _rotation = rotation; }

    boost::optional<ChartTextDirection> getDirection() const { return _direction; }
    void setDirection(boost::optional<ChartTextDirection> direction) { _direction = direction; }

    const boost::optional<ChartGraphicProps>& getGraphicProps() const { return _graphicProps; }
    void setGraphicProps(boost::optional<ChartGraphicProps> graphicProps)
    {
        _graphicProps = std::move(graphicProps);
    }

    std::shared_ptr<const RunProps> getRunProps() const { return _runProps; }
    void setRunProps(std::shared_ptr<const RunProps> runProps) { _runProps = std::move(runProps); }

    QN_VALUE(ChartTitle)

private:
    boost::optional<Text> _text;
    boost::optional<float> _x;
    boost::optional<float> _y;
    BoolOpt _overlay;
    boost::optional<double> _rotation;
    boost::optional<ChartTextDirection> _direction;
    boost::optional<ChartGraphicProps> _graphicProps;
    std::shared_ptr<const RunProps> _runProps;

    BOOST_DESCRIBE_CLASS(ChartTitle, (), (), (),
                         (_text, _x, _y, _overlay, _rotation, _direction, _graphicProps, _runProps))
};

} // namespace QN::DOM
