#pragma once

#include <boost/optional/optional.hpp>

#include <utility>

#include "DOM/Charts/DOM_ChartGraphicProps.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// Any other number passes through unchanged.
enum class ChartMarkerSymbol : unsigned char {
    None = 0,
    Circle = 1,
    Dash = 2,
    Diamond = 3,
    Dot = 4,
    Picture = 5,
    Plus = 6,
    Square = 7,
    Star = 8,
    Triangle = 9,
    X = 10,
    Asterisk = 11,
    Auto = 12,
};

/// What marks the points of a series. Copies are deep.
class DOM_API ChartMarker {
public:
    ChartMarkerSymbol getSymbol() const { return _symbol; }
    void setSymbol(ChartMarkerSymbol symbol) { _symbol = symbol; }

    const boost::optional<ChartGraphicProps>& getGraphicProps() const { return _graphicProps; }
    void setGraphicProps(boost::optional<ChartGraphicProps> graphicProps)
    {
        _graphicProps = std::move(graphicProps);
    }

    boost::optional<float> getSize() const { return _size; }
    void setSize(boost::optional<float> size) { _size = size; }

    QN_VALUE(ChartMarker)

private:
    ChartMarkerSymbol _symbol = ChartMarkerSymbol::Auto;
    boost::optional<ChartGraphicProps> _graphicProps;
    boost::optional<float> _size;

    BOOST_DESCRIBE_CLASS(ChartMarker, (), (), (), (_symbol, _graphicProps, _size))
};

} // namespace QN::DOM
