#pragma once

#include <boost/optional/optional.hpp>

#include <vector>

#include "DOM/Properties/DOM_Fill.h"
#include "DOM/Properties/DOM_GradientStop.h"

namespace QN::DOM {

/// The path that the colours follow. Any other number passes through unchanged.
enum class GradientType : unsigned char { Linear = 0, Circle = 1, Rectangle = 2, Shape = 3 };

/// Paints an area in colours that blend into each other. The stops keep the order in which they were added, whatever
/// their positions.
///
/// Of two angles, a NaN on either side ends a comparison by `<` as not less, with no look at the type of the gradient. No
/// angle is less than any, a NaN too.
class DOM_API GradientFill final : public Reflectable<Fill> {
public:
    const std::vector<GradientStop>& getGradientStops() const { return _gradientStops; }
    std::vector<GradientStop>& getGradientStops() { return _gradientStops; }

    boost::optional<float> getRotationAngle() const { return _rotationAngle; }
    void setRotationAngle(boost::optional<float> angle) { _rotationAngle = angle; }

    boost::optional<GradientType> getGradientType() const { return _gradientType; }
    void setGradientType(boost::optional<GradientType> type) { _gradientType = type; }

    QN_ORDERED_VALUE(GradientFill)
    QN_CONCRETE(Fill)

private:
    std::vector<GradientStop> _gradientStops;
    boost::optional<float> _rotationAngle;
    boost::optional<GradientType> _gradientType;

    BOOST_DESCRIBE_CLASS(GradientFill, (Fill), (), (), (_gradientStops, _rotationAngle, _gradientType))
};

} // namespace QN::DOM
