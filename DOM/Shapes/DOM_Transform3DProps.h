#pragma once

#include <boost/optional/optional.hpp>

#include "Utils/Public/BoolOpt.h"
#include "Utils/Public/Cinder.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// How a chart is turned and seen in space. In a file, angles, scale and translation stand under other names than those of
/// their accessors: "_rotateXangle", "_scale", "_translate".
class DOM_API Transform3DProps {
public:
    boost::optional<int> getRotationX() const { return _rotateXangle; }
    void setRotationX(boost::optional<int> angle) { _rotateXangle = angle; }

    boost::optional<int> getRotationY() const { return _rotateYangle; }
    void setRotationY(boost::optional<int> angle) { _rotateYangle = angle; }

    boost::optional<int> getRotationZ() const { return _rotateZangle; }
    void setRotationZ(boost::optional<int> angle) { _rotateZangle = angle; }

    /// Whether the axes keep right angles whatever the rotation.
    BoolOpt isRightAngledAxes() const { return _rightAngledAxes; }
    void setRightAngledAxes(BoolOpt rightAngled) { _rightAngledAxes = rightAngled; }

    BoolOpt isPerspectiveProjection() const { return _perspectiveProjection; }
    void setPerspectiveProjection(BoolOpt perspective) { _perspectiveProjection = perspective; }

    boost::optional<double> getPerspective() const { return _perspective; }
    void setPerspective(boost::optional<double> perspective) { _perspective = perspective; }

    const boost::optional<cinder::Vec3<float>>& getScaleVector() const { return _scale; }
    void setScaleVector(boost::optional<cinder::Vec3<float>> scale) { _scale = scale; }

    const boost::optional<cinder::Vec3<float>>& getTranslation() const { return _translate; }
    void setTranslation(boost::optional<cinder::Vec3<float>> translation) { _translate = translation; }

    QN_VALUE(Transform3DProps)

private:
    boost::optional<int> _rotateXangle;
    boost::optional<int> _rotateYangle;
    boost::optional<int> _rotateZangle;
    BoolOpt _rightAngledAxes;
    BoolOpt _perspectiveProjection;
    boost::optional<double> _perspective;
    boost::optional<cinder::Vec3<float>> _scale;
    boost::optional<cinder::Vec3<float>> _translate;

    BOOST_DESCRIBE_CLASS(Transform3DProps, (), (), (),
                         (_rotateXangle, _rotateYangle, _rotateZangle, _rightAngledAxes,
                          _perspectiveProjection, _perspective, _scale, _translate))
};

} // namespace QN::DOM
