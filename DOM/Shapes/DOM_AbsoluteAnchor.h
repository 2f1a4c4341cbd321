#pragma once

#include "Utils/Public/Cinder.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// Places an object at a distance from the origin of its page or sheet.
class DOM_API AbsoluteAnchor {
public:
    AbsoluteAnchor() = default;
    explicit AbsoluteAnchor(cinder::Vec2<float> offset) : _offset(offset) {}

    const cinder::Vec2<float>& getOffset() const { return _offset; }
    void setOffset(cinder::Vec2<float> offset) { _offset = offset; }

    QN_ORDERED_VALUE(AbsoluteAnchor)

private:
    cinder::Vec2<float> _offset;

    BOOST_DESCRIBE_CLASS(AbsoluteAnchor, (), (), (), (_offset))
};

} // namespace QN::DOM
