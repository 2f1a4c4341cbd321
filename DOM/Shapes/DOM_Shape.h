#pragma once

#include <boost/optional/optional.hpp>

#include <memory>
#include <utility>
#include <vector>

#include "DOM/DOM_Block.h"
#include "DOM/DOM_TextWithTombstones.h"
#include "DOM/Properties/DOM_ShapeStyle.h"
#include "DOM/Properties/DOM_SharedStyle.h"
#include "DOM/Shapes/DOM_Geometry.h"

namespace QN::DOM {

/// What a shape is used as. Any other number passes through unchanged.
enum class ShapeType : unsigned char { Shape = 0, TextBox = 1, Connector = 2 };

/// A drawn outline with text inside. Where it stands and how it is painted comes from its style. Copies are deep but
/// for the style, which is immutable and shared, and keep the identity of their source.
class DOM_API Shape final : public Reflectable<Block> {
public:
    Shape() = default;
    QN_DEEP_COPY(Shape)

    const TextWithTombstones& getTextWithTombstones() const { return _text; }
    TextWithTombstones& getTextWithTombstones() { return _text; }

    ReadonlyPtrVector<Block> getBlocks() const { return _text.getBlocks(); }
    std::vector<std::unique_ptr<Block>>& getBlocks() { return _text.getBlocks(); }

    /// The style, or without one an empty style that lasts to the end of the process.
    const ShapeStyle& getStyle() const { return derefSharedStyle(_style); }

    /// The handle itself, null without a style.
    const SharedStylePtr<ShapeStyle>& getSharedStyle() const { return _style; }
    SharedStylePtr<ShapeStyle>& getSharedStyle() { return _style; }

    /// Null when the shape has no outline.
    const Geometry* getGeometry() const { return _geometry.get(); }
    void setGeometry(std::unique_ptr<Geometry> geometry) { _geometry = std::move(geometry); }

    /// Absent until it is set; it cannot be unset.
    boost::optional<ShapeType> getShapeType() const { return _shapeType; }
    void setShapeType(ShapeType type) { _shapeType = type; }

    QN_VALUE(Shape)
    QN_CONCRETE(Block)

private:
    TextWithTombstones _text;
    SharedStylePtr<ShapeStyle> _style;
    std::unique_ptr<Geometry> _geometry;
    boost::optional<ShapeType> _shapeType;

    BOOST_DESCRIBE_CLASS(Shape, (Block), (), (), (_text, _style, _geometry, _shapeType))
};

} // namespace QN::DOM
