#pragma once

#include <boost/optional/optional.hpp>

#include <memory>
#include <utility>

#include "DOM/Properties/DOM_Color.h"
#include "DOM/Properties/DOM_DeclareAlgebra.h"
#include "DOM/Properties/DOM_LineProps.h"

namespace QN::DOM {

class LineEndingProps;

/// How a line is broken up along its length. `None` is a line that is not drawn. Any other number passes through
/// unchanged.
enum class DashStyle : unsigned char {
    None = 0,
    Solid = 1,
    Dot = 2,
    Dash = 3,
    LargeDash = 4,
    DashDot = 5,
    LargeDashDot = 6,
    LargeDashDotDot = 7,
    SystemDash = 8,
    SystemDot = 9,
    SystemDashDot = 10,
    SystemDashDotDot = 11,
    Double = 12,
    Wave = 13,
};

/// A line that is stated in place. A new one holds nothing: no width, which is not a hairline, and no colour, which is
/// not black.
class DOM_API RegularLineProps final : public Reflectable<LineProps> {
public:
    boost::optional<float> getWidth() const { return _width; }
    void setWidth(boost::optional<float> width) { _width = width; }

    boost::optional<DashStyle> getDashStyle() const { return _dashStyle; }
    void setDashStyle(boost::optional<DashStyle> style) { _dashStyle = style; }

    const std::shared_ptr<const LineEndingProps>& getHeadLineEnding() const { return _head; }
    void setHeadLineEnding(std::shared_ptr<const LineEndingProps> ending) { _head = std::move(ending); }

    const std::shared_ptr<const LineEndingProps>& getTailLineEnding() const { return _tail; }
    void setTailLineEnding(std::shared_ptr<const LineEndingProps> ending) { _tail = std::move(ending); }

    const boost::optional<Color>& getColor() const { return _color; }
    void setColor(boost::optional<Color> color) { _color = std::move(color); }

    QN_ORDERED_VALUE(RegularLineProps)
    QN_CONCRETE(LineProps)

private:
    boost::optional<float> _width;
    boost::optional<DashStyle> _dashStyle;
    std::shared_ptr<const LineEndingProps> _head;
    std::shared_ptr<const LineEndingProps> _tail;
    boost::optional<Color> _color;

    BOOST_DESCRIBE_CLASS(RegularLineProps, (LineProps), (), (), (_width, _dashStyle, _head, _tail, _color))
};

/// The one operation that goes by member: in all others a line is replaced or compared whole.
QN_DECLARE_INTERSECT(RegularLineProps)

} // namespace QN::DOM
