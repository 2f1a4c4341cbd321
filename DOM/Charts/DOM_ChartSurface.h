#pragma once

#include <boost/optional/optional.hpp>

#include <utility>

#include "DOM/Charts/DOM_ChartGraphicProps.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// A wall of a plot area.
class DOM_API ChartSurface {
public:
    const boost::optional<ChartGraphicProps>& getGraphicProps() const { return _graphicProps; }
    void setGraphicProps(boost::optional<ChartGraphicProps> graphicProps)
    {
        _graphicProps = std::move(graphicProps);
    }

    QN_VALUE(ChartSurface)

private:
    boost::optional<ChartGraphicProps> _graphicProps;

    BOOST_DESCRIBE_CLASS(ChartSurface, (), (), (), (_graphicProps))
};

} // namespace QN::DOM
