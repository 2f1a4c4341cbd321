#pragma once

#include <boost/blank.hpp>
#include <boost/optional/optional.hpp>
#include <boost/variant/variant.hpp>

#include <cstdint>
#include <memory>
#include <utility>

#include "DOM/Properties/DOM_Fill.h"
#include "DOM/Properties/DOM_LineProps.h"
#include "DOM/Shapes/DOM_AbsoluteAnchor.h"
#include "DOM/Shapes/DOM_OneCellAnchor.h"
#include "DOM/Shapes/DOM_TextAnchor.h"
#include "DOM/Shapes/DOM_TwoCellAnchor.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Size2D.h"

namespace QN::DOM {

/// Where the text of a shape stands in the area that the shape has for it. Any other number passes through unchanged, here
/// and below.
enum class ShapeAreaHorizontalAlignment : std::int32_t { Left = 0, Center = 1, Right = 2, Justify = 3 };

enum class ShapeAreaVerticalAlignment : std::int32_t { Top = 0, Middle = 1, Bottom = 2, Justify = 3 };

/// Placement and paint of a shape, as a shape style carries them. Copies are deep but for the padding, which is
/// immutable and shared.
class DOM_API ShapeProps {
public:
    /// Blank says nothing of the placement. It comes first, so that an anchor stands in a file under a number one higher
    /// than in a `Frame`.
    using Anchor = boost::variant<boost::blank, TextAnchor, AbsoluteAnchor, OneCellAnchor, TwoCellAnchor>;

    ShapeProps() = default;
    QN_DEEP_COPY(ShapeProps)

    const Anchor& getAnchor() const { return _anchor; }
    void setAnchor(Anchor anchor) { _anchor = std::move(anchor); }

    const boost::optional<Size2D<float>>& getExtent() const { return _extent; }
    void setExtent(boost::optional<Size2D<float>> extent) { _extent = extent; }

    /// Null when it is not stated.
    const Fill* getFill() const { return _fill.get(); }
    void setFill(std::unique_ptr<Fill> fill) { _fill = std::move(fill); }

    /// Null when it is not stated.
    const LineProps* getLineProps() const { return _lineProps.get(); }
    void setLineProps(std::unique_ptr<LineProps> lineProps) { _lineProps = std::move(lineProps); }

    boost::optional<ShapeAreaHorizontalAlignment> getShapeAreaHorizontalAlignment() const
    {
        return _shapeAreaHorizontalAlignment;
    }
    void setShapeAreaHorizontalAlignment(boost::optional<ShapeAreaHorizontalAlignment> alignment)
    {
        _shapeAreaHorizontalAlignment = alignment;
    }

    boost::optional<ShapeAreaVerticalAlignment> getShapeAreaVerticalAlignment() const
    {
        return _shapeAreaVerticalAlignment;
    }
    void setShapeAreaVerticalAlignment(boost::optional<ShapeAreaVerticalAlignment> alignment)
    {
        _shapeAreaVerticalAlignment = alignment;
    }

    const std::shared_ptr<const Insets>& getPadding() const { return _padding; }
    void setPadding(std::shared_ptr<const Insets> padding) { _padding = std::move(padding); }

    QN_ORDERED_VALUE(ShapeProps)

private:
    Anchor _anchor;
    boost::optional<Size2D<float>> _extent;
    std::unique_ptr<Fill> _fill;
    std::unique_ptr<LineProps> _lineProps;
    boost::optional<ShapeAreaHorizontalAlignment> _shapeAreaHorizontalAlignment;
    boost::optional<ShapeAreaVerticalAlignment> _shapeAreaVerticalAlignment;
    std::shared_ptr<const Insets> _padding;

    BOOST_DESCRIBE_CLASS(ShapeProps, (), (), (),
                         (_anchor, _extent, _fill, _lineProps, _shapeAreaHorizontalAlignment,
                          _shapeAreaVerticalAlignment, _padding))
};

} // namespace QN::DOM
