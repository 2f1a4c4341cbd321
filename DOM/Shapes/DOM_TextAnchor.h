#pragma once

#include <boost/optional/optional.hpp>

#include <cstdint>
#include <utility>

#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "DOM/Shapes/DOM_AnchorPosition.h"
#include "DOM/Shapes/DOM_Insets.h"
#include "Utils/Public/BoolOpt.h"
#include "Utils/Public/Cinder.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// How text runs around an object, or that the object stands in the line as a character does. Any other number passes
/// through unchanged.
enum class AnchorWrapType : std::int32_t {
    Inline = 0,
    Square = 1,
    Tight = 2,
    Through = 3,
    TopAndBottom = 4,
    None = 5,
};

/// Places an object among text. Distance and polygon are changed in place. A type, and the two flags at the end, cannot be
/// unset once they are set.
class DOM_API TextAnchor {
public:
    /// On which sides of the object text runs. Any other number passes through unchanged.
    enum class WrapAround : std::int32_t { BothSides = 0, Left = 1, Right = 2, Largest = 3 };

    TextAnchor() = default;
    explicit TextAnchor(AnchorWrapType type) : _type(type) {}

    boost::optional<AnchorWrapType> getType() const { return _type; }
    void setType(AnchorWrapType type) { _type = type; }

    const boost::optional<AnchorHorizontalPosition>& getHorizontalPosition() const
    {
        return _horizontalPosition;
    }
    void setHorizontalPosition(boost::optional<AnchorHorizontalPosition> position)
    {
        _horizontalPosition = std::move(position);
    }

    const boost::optional<AnchorVerticalPosition>& getVerticalPosition() const { return _verticalPosition; }
    void setVerticalPosition(boost::optional<AnchorVerticalPosition> position)
    {
        _verticalPosition = std::move(position);
    }

    /// How far text keeps from each side.
    const Insets& getDistance() const { return _distance; }
    Insets& getDistance() { return _distance; }

    boost::optional<WrapAround> getWrapAround() const { return _wrapAround; }
    void setWrapAround(boost::optional<WrapAround> wrapAround) { _wrapAround = wrapAround; }

    /// The outline that text follows.
    const cinder::PolyLine<cinder::Vec2<float>>& getPolygon() const { return _polygon; }
    cinder::PolyLine<cinder::Vec2<float>>& getPolygon() { return _polygon; }

    BoolOpt getAllowOverlap() const { return _allowOverlap; }
    void setAllowOverlap(bool allowOverlap) { _allowOverlap = allowOverlap; }

    BoolOpt getBehindDoc() const { return _behindDoc; }
    void setBehindDoc(bool behindDoc) { _behindDoc = behindDoc; }

    QN_ORDERED_VALUE(TextAnchor)

private:
    boost::optional<AnchorWrapType> _type;
    boost::optional<AnchorHorizontalPosition> _horizontalPosition;
    boost::optional<AnchorVerticalPosition> _verticalPosition;
    Insets _distance;
    boost::optional<WrapAround> _wrapAround;
    cinder::PolyLine<cinder::Vec2<float>> _polygon;
    BoolOpt _allowOverlap;
    BoolOpt _behindDoc;

    BOOST_DESCRIBE_CLASS(TextAnchor, (), (), (),
                         (_type, _horizontalPosition, _verticalPosition, _distance, _wrapAround, _polygon,
                          _allowOverlap, _behindDoc))
};

/// The polygon is a plain member: it is always taken over, never excluded, and must be equal already to intersect.
QN_DECLARE_OVERRIDE(TextAnchor)
QN_DECLARE_EXCLUDE(TextAnchor)
QN_DECLARE_INTERSECT(TextAnchor)

} // namespace QN::DOM
