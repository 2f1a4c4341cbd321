#pragma once

#include <string>

#include "DOM/PredefinedStyles/DOM_PredefinedStyleName.h"
#include "Utils/Public/Export.h"
#include "Utils/Public/UUID.h"

/// There are no predefined shape styles yet. The functions have the form of those of text styles, and each fails at once a
/// contract whose message is its own signature and " is not implemented".

namespace QN::DOM {

class NamedShapeStyle;
class Styles;

[[noreturn]] DOM_API std::string makePredefinedShapeStyleName(PredefinedStyleName styleType);
[[noreturn]] DOM_API UUID makePredefinedShapeStyleUUID(PredefinedStyleName styleType);
[[noreturn]] DOM_API NamedShapeStyle makePredefinedShapeStyle(PredefinedStyleName styleType);
[[noreturn]] DOM_API UUID getPredefinedShapeStyleUUID(const Styles& styles, PredefinedStyleName styleType);
[[noreturn]] DOM_API void appendPredefinedShapeStyles(Styles& styles);

} // namespace QN::DOM
