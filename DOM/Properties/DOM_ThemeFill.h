#pragma once

#include <boost/optional/optional.hpp>

#include <cstdint>
#include <utility>

#include "DOM/Properties/DOM_Color.h"
#include "DOM/Properties/DOM_Fill.h"

namespace QN::DOM {

/// Which list of a theme's `FormatScheme` a reference means. Any other number passes through unchanged.
enum class FillThemeType : unsigned char { Fill = 0, BackgroundFill = 1 };

/// Paints an area with a fill of the theme's `FormatScheme`.
class DOM_API ThemeFill final : public Reflectable<Fill> {
public:
    /// The place of the fill in its list. Nothing checks that the list has it.
    boost::optional<std::uint64_t> getIndex() const { return _index; }
    void setIndex(boost::optional<std::uint64_t> index) { _index = index; }

    FillThemeType getFillThemeType() const { return _fillThemeType; }
    void setFillThemeType(FillThemeType type) { _fillThemeType = type; }

    /// Takes the place of the placeholder in the colours of the referred fill.
    const boost::optional<Color>& getColor() const { return _color; }
    void setColor(boost::optional<Color> color) { _color = std::move(color); }

    QN_ORDERED_VALUE(ThemeFill)
    QN_CONCRETE(Fill)

private:
    boost::optional<std::uint64_t> _index;
    FillThemeType _fillThemeType{};
    boost::optional<Color> _color;

    BOOST_DESCRIBE_CLASS(ThemeFill, (Fill), (), (), (_index, _fillThemeType, _color))
};

} // namespace QN::DOM
