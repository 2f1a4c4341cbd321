#pragma once

#include <string>

#include "DOM/PredefinedStyles/DOM_PredefinedStyleName.h"
#include "Utils/Public/Export.h"
#include "Utils/Public/UUID.h"

/// There are no predefined table styles yet. The functions have the form of those of text styles, and each fails at once a
/// contract whose message is its own signature and " is not implemented".

namespace QN::DOM {

class NamedTableStyle;
class Styles;

[[noreturn]] DOM_API std::string makePredefinedTableStyleName(PredefinedStyleName styleType);
[[noreturn]] DOM_API UUID makePredefinedTableStyleUUID(PredefinedStyleName styleType);
[[noreturn]] DOM_API NamedTableStyle makePredefinedTableStyle(PredefinedStyleName styleType);
[[noreturn]] DOM_API UUID getPredefinedTableStyleUUID(const Styles& styles, PredefinedStyleName styleType);
[[noreturn]] DOM_API void appendPredefinedTableStyles(Styles& styles);

} // namespace QN::DOM
