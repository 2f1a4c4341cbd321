#pragma once

#include <memory>
#include <utility>

#include "DOM/Properties/DOM_Color.h"

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

template <class Root>
std::unique_ptr<Root> clone(const Root& object)
{
    std::unique_ptr<Root> copy;
    object.cloneTo(copy);
    return copy;
}

template <class Root>
std::shared_ptr<Root> cloneShared(const Root& object)
{
    std::shared_ptr<Root> copy;
    object.cloneTo(copy);
    return copy;
}

} // namespace QN::Test
