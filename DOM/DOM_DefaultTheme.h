#pragma once

#include "DOM/Properties/DOM_Color.h"
#include "Utils/Public/Export.h"

/// The theme of a document that brings none of its own, and its palette.

namespace QN::DOM {

class Document;

// Opaque colours, made when the library is loaded.

DOM_API extern const Color DefaultDark1Color;
DOM_API extern const Color DefaultDark2Color;
DOM_API extern const Color DefaultLight1Color;
DOM_API extern const Color DefaultLight2Color;
DOM_API extern const Color DefaultAccent1Color;
DOM_API extern const Color DefaultAccent2Color;
DOM_API extern const Color DefaultAccent3Color;
DOM_API extern const Color DefaultAccent4Color;
DOM_API extern const Color DefaultAccent5Color;
DOM_API extern const Color DefaultAccent6Color;
DOM_API extern const Color DefaultHyperlinkColor;
DOM_API extern const Color DefaultFollowedHyperlinkColor;

/// Gives the built-in theme to a document that has none. An existing theme, even an empty one, stays as it is. Makes no
/// `ColorMap`, and sets no colours for the slots before `ThemeColorId::Dark1`, so that `ColorScheme::getColor` fails its
/// contract for them. The major font is Calibri and the minor one Cambria, which is not a mix-up.
DOM_API void setDefaultThemeIfNeeded(Document& document);

} // namespace QN::DOM
