#pragma once

#include <boost/optional/optional.hpp>

#include <memory>
#include <string>
#include <utility>

#include "DOM/Properties/DOM_Fill.h"

namespace QN::DOM {

/// How an image covers the area that it fills. Any other number passes through unchanged.
enum class BlipType : unsigned char { Stretch = 0, Tile = 1 };

/// Paints an area with an image. Equality and order look at the bytes of the image, not at who holds them; no image is
/// less than any.
class DOM_API BlipFill final : public Reflectable<Fill> {
public:
    BlipFill() = default;
    /// A copy has the bytes in a holder of its own.
    QN_DEEP_COPY(BlipFill)

    /// The bytes of the image file; null when there is none.
    const std::shared_ptr<const std::string>& getContent() const { return _content; }
    /// Shares the bytes with the caller.
    void setContent(std::shared_ptr<const std::string> content) { _content = std::move(content); }

    boost::optional<BlipType> getType() const { return _type; }
    void setType(boost::optional<BlipType> type) { _type = type; }

    QN_ORDERED_VALUE(BlipFill)
    QN_CONCRETE(Fill)

private:
    std::shared_ptr<const std::string> _content;
    boost::optional<BlipType> _type;

    BOOST_DESCRIBE_CLASS(BlipFill, (Fill), (), (), (_content, _type))
};

} // namespace QN::DOM
