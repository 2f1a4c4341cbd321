#pragma once

#include "Utils/Public/Export.h"

/// What gives the properties of text, whether it holds a style or is one: for templates over both.

namespace QN::DOM {

class NamedTextStyle;
class Paragraph;
class ParagraphStyle;

/// The style of a paragraph, the empty style where it has none.
DOM_API const ParagraphStyle& getStyleFromContainer(const Paragraph& paragraph);

/// The named style itself.
DOM_API const NamedTextStyle& getStyleFromContainer(const NamedTextStyle& style);

} // namespace QN::DOM
