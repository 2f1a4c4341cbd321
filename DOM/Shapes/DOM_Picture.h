#pragma once

#include <memory>
#include <string>
#include <utility>

#include "DOM/Shapes/DOM_GraphicalObject.h"

namespace QN::DOM {

/// An image. Copies share its bytes; equality looks at them.
class DOM_API Picture final : public Reflectable<GraphicalObject> {
public:
    Picture() = default;
    explicit Picture(std::shared_ptr<const std::string> pictureData) : _pictureData(std::move(pictureData)) {}

    /// The bytes of the image file; null when there is none.
    const std::shared_ptr<const std::string>& getPictureData() const { return _pictureData; }
    void setPictureData(std::shared_ptr<const std::string> pictureData)
    {
        _pictureData = std::move(pictureData);
    }

    QN_VALUE(Picture)
    QN_CONCRETE(GraphicalObject)

private:
    std::shared_ptr<const std::string> _pictureData;

    BOOST_DESCRIBE_CLASS(Picture, (GraphicalObject), (), (), (_pictureData))
};

} // namespace QN::DOM
