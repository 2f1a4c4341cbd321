#pragma once

#include <string>
#include <utility>

#include "DOM/DOM_ColorScheme.h"
#include "DOM/DOM_FontScheme.h"
#include "DOM/DOM_FormatScheme.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// The look that a document refers to by name and number: colours, fonts, fills and lines. Copies are deep.
///
/// Whoever draws a `Color` that names a slot looks it up in the document's `ColorMap`, takes the colour of the slot
/// that is meant from the theme's `ColorScheme`, and applies the transforms.
class DOM_API Theme {
public:
    const std::string& getName() const { return _name; }
    void setName(std::string name) { _name = std::move(name); }

    const ColorScheme& getColorScheme() const { return _colorScheme; }
    void setColorScheme(ColorScheme scheme) { _colorScheme = std::move(scheme); }

    const FontScheme& getFontScheme() const { return _fontScheme; }
    void setFontScheme(FontScheme scheme) { _fontScheme = std::move(scheme); }

    const FormatScheme& getFormatScheme() const { return _formatScheme; }
    void setFormatScheme(FormatScheme scheme) { _formatScheme = std::move(scheme); }

    QN_VALUE(Theme)

private:
    std::string _name;
    ColorScheme _colorScheme;
    FontScheme _fontScheme;
    FormatScheme _formatScheme;

    BOOST_DESCRIBE_CLASS(Theme, (), (), (), (_name, _colorScheme, _fontScheme, _formatScheme))
};

} // namespace QN::DOM
