#pragma once

#include <boost/blank.hpp>
#include <boost/optional/optional.hpp>
#include <boost/variant/variant.hpp>

#include <memory>
#include <utility>

#include "DOM/DOM_TextWithTombstones.h"
#include "DOM/Properties/DOM_Fill.h"
#include "DOM/Properties/DOM_NamedStyleName.h"
#include "DOM/Shapes/DOM_AbsoluteAnchor.h"
#include "DOM/Shapes/DOM_OneCellAnchor.h"
#include "DOM/Shapes/DOM_TextAnchor.h"
#include "DOM/Shapes/DOM_TwoCellAnchor.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/Size2D.h"
#include "Utils/Public/UUIDable.h"

namespace QN::DOM {

class Insets;

/// A style of shapes that a document knows by name and `UUID`. Copies own their background and their text. Nothing checks
/// that its parent exists, nor that the parents make no circle.
class DOM_API NamedShapeStyle final : public Reflectable<UUIDable> {
public:
    /// Blank says nothing of the placement.
    using Anchor = boost::variant<boost::blank, TextAnchor, AbsoluteAnchor, OneCellAnchor, TwoCellAnchor>;

    NamedShapeStyle() = default;
    explicit NamedShapeStyle(const UUID& uuid) : Reflectable<UUIDable>(uuid) {}
    QN_DEEP_COPY(NamedShapeStyle)
    ~NamedShapeStyle() override = default;

    const NamedStyleName& getName() const { return _name; }
    void setName(NamedStyleName name) { _name = std::move(name); }

    /// Null when it is not stated.
    const Fill* getBackground() const { return _background.get(); }
    void setBackground(std::unique_ptr<Fill> background) { _background = std::move(background); }

    const Anchor& getAnchor() const { return _anchor; }
    void setAnchor(Anchor anchor) { _anchor = std::move(anchor); }

    const boost::optional<Size2D<float>>& getExtent() const { return _extent; }
    void setExtent(boost::optional<Size2D<float>> extent) { _extent = extent; }

    const std::shared_ptr<const Insets>& getPadding() const { return _padding; }
    void setPadding(std::shared_ptr<const Insets> padding) { _padding = std::move(padding); }

    const TextWithTombstones& getTextWithTombstones() const { return _textWithTombstones; }
    TextWithTombstones& getTextWithTombstones() { return _textWithTombstones; }

    /// The named shape style that this one refines; nil for none.
    const UUID& getParentUUID() const { return _parentUUID; }
    void setParentUUID(const UUID& uuid) { _parentUUID = uuid; }

    QN_VALUE(NamedShapeStyle)

private:
    NamedStyleName _name;
    std::unique_ptr<Fill> _background;
    Anchor _anchor;
    boost::optional<Size2D<float>> _extent;
    std::shared_ptr<const Insets> _padding;
    TextWithTombstones _textWithTombstones;
    UUID _parentUUID;

    BOOST_DESCRIBE_CLASS(NamedShapeStyle, (UUIDable), (), (),
                         (_name, _background, _anchor, _extent, _padding, _textWithTombstones, _parentUUID))
};

} // namespace QN::DOM
