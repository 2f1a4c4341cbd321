#pragma once

#include <memory>
#include <utility>

#include "DOM/Properties/DOM_Color.h"
#include "Support/Clones.h"

/// Colours for the tests of what holds them.

namespace QN::Test {

inline DOM::Color makeColor(unsigned char red, unsigned char green, unsigned char blue, unsigned char alpha)
{
    return DOM::Color(cinder::ColorAT<unsigned char>(red, green, blue, alpha));
}

inline DOM::Color makeSlotColor(DOM::ThemeColorId slot)
{
    return DOM::Color(slot);
}

inline DOM::Color makePlaceholder(DOM::ColorTransforms transforms = {})
{
    return {TaggedEmpty<DOM::PhClrTag>(), std::move(transforms)};
}

/// The JSON text of a default colour.
inline constexpr const char* DefaultColorJson =
    R"({"_value":{"which":0,"data":{"value0":0,"value1":0,"value2":0,"value3":0}},"_transforms":[]})";

} // namespace QN::Test
