#pragma once

#include <boost/optional/optional.hpp>

#include <utility>

#include "DOM/Charts/DOM_ChartGraphicProps.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// What makes one point look different from its series; a point that does not differ has none. Copies are deep.
class DOM_API DataPoint {
public:
    /// The point's position in the series. It is not checked.
    unsigned int getIdx() const { return _idx; }
    void setIdx(unsigned int idx) { _idx = idx; }

    const boost::optional<ChartGraphicProps>& getGraphicProps() const { return _graphicProps; }
    void setGraphicProps(boost::optional<ChartGraphicProps> graphicProps)
    {
        _graphicProps = std::move(graphicProps);
    }

    QN_VALUE(DataPoint)

private:
    unsigned int _idx = 0;
    boost::optional<ChartGraphicProps> _graphicProps;

    BOOST_DESCRIBE_CLASS(DataPoint, (), (), (), (_idx, _graphicProps))
};

} // namespace QN::DOM
