#pragma once

#include <boost/optional/optional.hpp>

#include <utility>

#include "DOM/Charts/DOM_ChartGraphicProps.h"
#include "DOM/Charts/DOM_DataLabelPosition.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// The labels of a whole series or chart. Copies are deep.
class DOM_API GroupDataLabel {
public:
    bool isDeleted() const { return _deleted; }
    void setDeleted(bool deleted) { _deleted = deleted; }

    boost::optional<DataLabelPosition> getPosition() const { return _position; }
    void setPosition(boost::optional<DataLabelPosition> position) { _position = position; }

    const boost::optional<ChartGraphicProps>& getGraphicProps() const { return _graphicProps; }
    void setGraphicProps(boost::optional<ChartGraphicProps> graphicProps)
    {
        _graphicProps = std::move(graphicProps);
    }

    QN_VALUE(GroupDataLabel)

private:
    bool _deleted = false;
    boost::optional<DataLabelPosition> _position;
    boost::optional<ChartGraphicProps> _graphicProps;

    BOOST_DESCRIBE_CLASS(GroupDataLabel, (), (), (), (_deleted, _position, _graphicProps))
};

} // namespace QN::DOM
