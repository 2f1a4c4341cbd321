#pragma once

#include <boost/optional/optional.hpp>
#include <boost/variant/variant.hpp>

#include <memory>
#include <utility>

#include "DOM/Shapes/DOM_AbsoluteAnchor.h"
#include "DOM/Shapes/DOM_OneCellAnchor.h"
#include "DOM/Shapes/DOM_TextAnchor.h"
#include "DOM/Shapes/DOM_TwoCellAnchor.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Ptr/SharedConstPtr.h"
#include "Utils/Public/Size2D.h"

namespace QN::DOM {

class Crop;
class GraphicalObject;

/// Places a graphical object on a page or a sheet. A frame always has an anchor, by default a `TextAnchor` that says
/// nothing.
///
/// The object and the crop are immutable once they are in a frame. Copies of a frame share both, so that they show the
/// very same object with the same identity; equality looks at their contents.
class DOM_API Frame {
public:
    using Anchor = boost::variant<TextAnchor, AbsoluteAnchor, OneCellAnchor, TwoCellAnchor>;

    /// Null when the frame is empty.
    const GraphicalObject* getGraphicalObject() const { return _graphicalObject.get(); }
    void setGraphicalObject(std::unique_ptr<GraphicalObject> object);

    const Anchor& getAnchor() const { return _anchor; }
    void setAnchor(Anchor anchor) { _anchor = std::move(anchor); }

    const boost::optional<Size2D<float>>& getExtent() const { return _extent; }
    void setExtent(boost::optional<Size2D<float>> extent) { _extent = extent; }

    boost::optional<double> getRotation() const { return _rotation; }
    void setRotation(boost::optional<double> rotation) { _rotation = rotation; }

    const std::shared_ptr<const Crop>& getCrop() const { return _crop; }
    void setCrop(std::shared_ptr<const Crop> crop) { _crop = std::move(crop); }

    QN_VALUE(Frame)

private:
    SharedConstPtr<GraphicalObject> _graphicalObject;
    Anchor _anchor;
    boost::optional<Size2D<float>> _extent;
    boost::optional<double> _rotation;
    std::shared_ptr<const Crop> _crop;

    BOOST_DESCRIBE_CLASS(Frame, (), (), (), (_graphicalObject, _anchor, _extent, _rotation, _crop))
};

} // namespace QN::DOM
