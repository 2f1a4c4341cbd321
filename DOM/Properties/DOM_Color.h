#pragma once

#include <boost/variant/variant.hpp>

#include <utility>

#include "DOM/Properties/DOM_ColorTransform.h"
#include "DOM/Properties/DOM_ThemeColorId.h"
#include "Utils/Public/Cinder.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/TaggedEmpty.h"

namespace QN::DOM {

struct PhClrTag {};

/// What a colour starts from: literal channels, a slot of the theme, or the placeholder, which stands for the colour
/// that is given by whatever refers to an entry of a theme's format scheme.
using ColorValue = boost::variant<cinder::ColorAT<unsigned char>, ThemeColorId, TaggedEmpty<PhClrTag>>;

/// A colour, kept symbolically: what it starts from and the transforms to be applied, in their order. Nothing resolves
/// or reduces it here. A default colour is fully transparent black.
///
/// Orders by the kind of the value, then by channels or slot, then by the transforms. A NaN among the amounts makes a
/// colour differ from itself.
class DOM_API Color {
public:
    Color() = default;
    explicit Color(ColorValue value) : _value(std::move(value)) {}
    Color(ColorValue value, ColorTransforms transforms)
        : _value(std::move(value)), _transforms(std::move(transforms))
    {
    }

    const ColorValue& getValue() const { return _value; }
    void setValue(ColorValue value) { _value = std::move(value); }

    const ColorTransforms& getTransforms() const { return _transforms; }
    void setTransforms(ColorTransforms transforms) { _transforms = std::move(transforms); }

    QN_ORDERED_VALUE(Color)

private:
    ColorValue _value;
    ColorTransforms _transforms;

    BOOST_DESCRIBE_CLASS(Color, (), (), (), (_value, _transforms))
};

} // namespace QN::DOM
