#pragma once

#include <memory>
#include <utility>

#include "DOM/Properties/DOM_SharedStyle.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/UUID.h"

namespace QN::DOM {

class ShapeProps;

/// The anonymous style of a shape.
class DOM_API ShapeStyle {
public:
    const std::shared_ptr<const ShapeProps>& getShapeProps() const { return _shapeProps; }
    void setShapeProps(std::shared_ptr<const ShapeProps> props) { _shapeProps = std::move(props); }

    /// The named shape style that this one refines; nil for none.
    const UUID& getParentUUID() const { return _parentUUID; }
    void setParentUUID(const UUID& uuid) { _parentUUID = uuid; }

    /// Whether the style says nothing. It looks at pointers alone: properties that are present and empty do say
    /// something.
    bool isEmpty() const { return !_shapeProps && !_parentUUID; }

    QN_ORDERED_VALUE(ShapeStyle)

private:
    std::shared_ptr<const ShapeProps> _shapeProps;
    UUID _parentUUID;

    BOOST_DESCRIBE_CLASS(ShapeStyle, (), (), (), (_shapeProps, _parentUUID))
};

} // namespace QN::DOM
