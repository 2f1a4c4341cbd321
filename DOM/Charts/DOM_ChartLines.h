#pragma once

#include <boost/optional/optional.hpp>

#include <utility>

#include "DOM/Charts/DOM_ChartGraphicProps.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// Lines across a plot area: drop lines, series lines, grid lines.
class DOM_API ChartLines {
public:
    const boost::optional<ChartGraphicProps>& getGraphicProps() const { return _graphicProps; }
    void setGraphicProps(boost::optional<ChartGraphicProps> graphicProps)
    {
        _graphicProps = std::move(graphicProps);
    }

    QN_VALUE(ChartLines)

private:
    boost::optional<ChartGraphicProps> _graphicProps;

    BOOST_DESCRIBE_CLASS(ChartLines, (), (), (), (_graphicProps))
};

} // namespace QN::DOM
