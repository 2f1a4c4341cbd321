#pragma once

#include <boost/container/vector.hpp>
#include <boost/mpl/list/list30.hpp>
#include <boost/variant/variant.hpp>

#include "Utils/Public/TaggedEmpty.h"
#include "Utils/Public/TaggedValue.h"

/// The colour transforms of DrawingML (ECMA-376, part 1, 20.1.2.3), kept as they were written: nothing applies one.

namespace QN::DOM {

namespace ColorTransformsDetails {

struct AlphaTag;
struct AlphaModulationTag;
struct AlphaOffsetTag;
struct BlueTag;
struct BlueModulationTag;
struct BlueOffsetTag;
struct ComplementTag;
struct GammaTag;
struct GrayTag;
struct GreenTag;
struct GreenModulationTag;
struct GreenOffsetTag;
struct HueTag;
struct HueModulationTag;
struct HueOffsetTag;
struct InverseTag;
struct InverseGammaTag;
struct LuminanceTag;
struct LuminanceModulationTag;
struct LuminanceOffsetTag;
struct RedTag;
struct RedModulationTag;
struct RedOffsetTag;
struct SaturationTag;
struct SaturationModulationTag;
struct SaturationOffsetTag;
struct TintTag;
struct ShadeTag;

} // namespace ColorTransformsDetails

// Amounts are fractions, 1.0 being 100%.

using Alpha = TaggedValue<double, ColorTransformsDetails::AlphaTag>;
using AlphaModulation = TaggedValue<double, ColorTransformsDetails::AlphaModulationTag>;
using AlphaOffset = TaggedValue<double, ColorTransformsDetails::AlphaOffsetTag>;
using Blue = TaggedValue<double, ColorTransformsDetails::BlueTag>;
using BlueModulation = TaggedValue<double, ColorTransformsDetails::BlueModulationTag>;
using BlueOffset = TaggedValue<double, ColorTransformsDetails::BlueOffsetTag>;
using Complement = TaggedEmpty<ColorTransformsDetails::ComplementTag>;
using Gamma = TaggedEmpty<ColorTransformsDetails::GammaTag>;
using Gray = TaggedEmpty<ColorTransformsDetails::GrayTag>;
using Green = TaggedValue<double, ColorTransformsDetails::GreenTag>;
using GreenModulation = TaggedValue<double, ColorTransformsDetails::GreenModulationTag>;
using GreenOffset = TaggedValue<double, ColorTransformsDetails::GreenOffsetTag>;
using Hue = TaggedValue<double, ColorTransformsDetails::HueTag>;
using HueModulation = TaggedValue<double, ColorTransformsDetails::HueModulationTag>;
/// The one transform whose amount is an integer.
using HueOffset = TaggedValue<int, ColorTransformsDetails::HueOffsetTag>;
using Inverse = TaggedEmpty<ColorTransformsDetails::InverseTag>;
using InverseGamma = TaggedEmpty<ColorTransformsDetails::InverseGammaTag>;
using Luminance = TaggedValue<double, ColorTransformsDetails::LuminanceTag>;
using LuminanceModulation = TaggedValue<double, ColorTransformsDetails::LuminanceModulationTag>;
using LuminanceOffset = TaggedValue<double, ColorTransformsDetails::LuminanceOffsetTag>;
using Red = TaggedValue<double, ColorTransformsDetails::RedTag>;
using RedModulation = TaggedValue<double, ColorTransformsDetails::RedModulationTag>;
using RedOffset = TaggedValue<double, ColorTransformsDetails::RedOffsetTag>;
using Saturation = TaggedValue<double, ColorTransformsDetails::SaturationTag>;
using SaturationModulation = TaggedValue<double, ColorTransformsDetails::SaturationModulationTag>;
using SaturationOffset = TaggedValue<double, ColorTransformsDetails::SaturationOffsetTag>;
using Tint = TaggedValue<double, ColorTransformsDetails::TintTag>;
using Shade = TaggedValue<double, ColorTransformsDetails::ShadeTag>;

} // namespace QN::DOM

/// `boost::variant` keeps its alternatives in an `mpl::list`, which takes twenty types unless every user of the library
/// compiles with other limits. This says which list holds the transforms instead.
template <class... Ts>
struct boost::detail::variant::make_variant_list<QN::DOM::Alpha, QN::DOM::AlphaModulation, Ts...> {
    using type = typename boost::mpl::list28<QN::DOM::Alpha, QN::DOM::AlphaModulation, Ts...>::type;
};

namespace QN::DOM {

/// One transform. The place of an alternative is its number in a file: new ones may only be added at the end.
using ColorTransform =
    boost::variant<Alpha, AlphaModulation, AlphaOffset, Blue, BlueModulation, BlueOffset, Complement, Gamma,
                   Gray, Green, GreenModulation, GreenOffset, Hue, HueModulation, HueOffset, Inverse,
                   InverseGamma, Luminance, LuminanceModulation, LuminanceOffset, Red, RedModulation,
                   RedOffset, Saturation, SaturationModulation, SaturationOffset, Tint, Shade>;

/// Transforms in the order in which they apply. A kind may occur more than once.
using ColorTransforms = boost::container::vector<ColorTransform>;

} // namespace QN::DOM
