#pragma once

#include <boost/optional/optional.hpp>

#include <memory>
#include <utility>

#include "DOM/Charts/DOM_ChartGraphicProps.h"
#include "DOM/Charts/DOM_DataLabelPosition.h"
#include "DOM/DOM_TextWithTombstones.h"
#include "Utils/Public/Cinder.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// What makes the label of one point differ from those of its series; a point that does not differ has none. Copies are
/// deep.
class DOM_API DataLabel {
public:
    DataLabel() = default;
    QN_DEEP_COPY(DataLabel)

    /// The point's position in the series. It is not checked.
    unsigned int getIdx() const { return _idx; }
    void setIdx(unsigned int idx) { _idx = idx; }

    bool isDeleted() const { return _deleted; }
    void setDeleted(bool deleted) { _deleted = deleted; }

    const boost::optional<cinder::Vec2<float>>& getOffset() const { return _offset; }
    void setOffset(boost::optional<cinder::Vec2<float>> offset) { _offset = offset; }

    boost::optional<DataLabelPosition> getPosition() const { return _position; }
    void setPosition(boost::optional<DataLabelPosition> position) { _position = position; }

    /// Null when the label shows the point's data.
    const TextWithTombstones* getText() const { return _text.get(); }
    TextWithTombstones* getText() { return _text.get(); }
    void setText(std::unique_ptr<TextWithTombstones> text) { _text = std::move(text); }

    const boost::optional<ChartGraphicProps>& getGraphicProps() const { return _graphicProps; }
    void setGraphicProps(boost::optional<ChartGraphicProps> graphicProps)
    {
        _graphicProps = std::move(graphicProps);
    }

    QN_VALUE(DataLabel)

private:
    unsigned int _idx = 0;
    bool _deleted = false;
    boost::optional<cinder::Vec2<float>> _offset;
    boost::optional<DataLabelPosition> _position;
    std::unique_ptr<TextWithTombstones> _text;
    boost::optional<ChartGraphicProps> _graphicProps;

    BOOST_DESCRIBE_CLASS(DataLabel, (), (), (), (_idx, _deleted, _offset, _position, _text, _graphicProps))
};

} // namespace QN::DOM
