#pragma once

#include <boost/optional/optional.hpp>

#include <memory>
#include <string>
#include <utility>

#include "DOM/Properties/DOM_NumberFormatType.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

class Frame;

/// What is drawn before the paragraphs of a list level. Each member may be absent. Copies share the picture.
class DOM_API NumListMarker {
public:
    /// The template of the marker, which is stored and not expanded: `%1` to `%9` stand for the counters of the levels 1 to
    /// 9, so that "%1.%2." shows those of the first two. Of a bullet it is the glyph itself.
    const boost::optional<std::string>& getTextExpr() const { return _textExpr; }
    void setTextExpr(boost::optional<std::string> textExpr) { _textExpr = std::move(textExpr); }

    boost::optional<NumberFormatType> getType() const { return _type; }
    void setType(boost::optional<NumberFormatType> type) { _type = type; }

    /// The number of the first paragraph.
    boost::optional<unsigned long> getStartIndex() const { return _startIndex; }
    void setStartIndex(boost::optional<unsigned long> index) { _startIndex = index; }

    /// A picture in place of a glyph.
    const std::shared_ptr<const Frame>& getPictureFrame() const { return _pictureFrame; }
    void setPictureFrame(std::shared_ptr<const Frame> frame) { _pictureFrame = std::move(frame); }

    QN_VALUE(NumListMarker)

private:
    boost::optional<std::string> _textExpr;
    boost::optional<NumberFormatType> _type;
    boost::optional<unsigned long> _startIndex;
    std::shared_ptr<const Frame> _pictureFrame;

    BOOST_DESCRIBE_CLASS(NumListMarker, (), (), (), (_textExpr, _type, _startIndex, _pictureFrame))
};

} // namespace QN::DOM
