#pragma once

#include <boost/optional/optional.hpp>

#include <utility>

#include "DOM/Properties/DOM_Color.h"
#include "DOM/Properties/DOM_Fill.h"

namespace QN::DOM {

/// Paints an area in one colour. Without a colour it says nothing of it, which differs from a default `Color`.
class DOM_API SolidFill final : public Reflectable<Fill> {
public:
    const boost::optional<Color>& getColor() const { return _color; }
    void setColor(boost::optional<Color> color) { _color = std::move(color); }

    QN_ORDERED_VALUE(SolidFill)
    QN_CONCRETE(Fill)

private:
    boost::optional<Color> _color;

    BOOST_DESCRIBE_CLASS(SolidFill, (Fill), (), (), (_color))
};

} // namespace QN::DOM
