#pragma once

#include <string>

#include "DOM/PredefinedStyles/DOM_PredefinedStyleName.h"
#include "Utils/Public/Export.h"
#include "Utils/Public/UUID.h"

/// The named text styles that new documents receive. Each function that takes a type fails the contract
/// "No named text style with such type." for one above the last.

namespace QN::DOM {

class NamedTextStyle;
class RunProps;
class Styles;

/// "Heading 1" and its like.
DOM_API std::string makePredefinedTextStyleName(PredefinedStyleName styleType);

/// The same in every document, so that copies that are edited apart agree on what a style is.
DOM_API UUID makePredefinedTextStyleUUID(PredefinedStyleName styleType);

/// A new style with the name, the `UUID` and the properties of its type.
DOM_API NamedTextStyle makePredefinedTextStyle(PredefinedStyleName styleType);

/// The `UUID` of the style of a type in a store; nil when it has none. A style of that type under another `UUID` than the
/// type's fails the contract of `findNamedStyle`.
DOM_API UUID getPredefinedTextStyleUUID(const Styles& styles, PredefinedStyleName styleType);

/// Adds the predefined styles that the store lacks, and makes "Normal" its default paragraph style if it has none.
/// Headings 6 to 10 are not among them: they come from `makePredefinedTextStyle` alone.
///
/// A type and its `UUID` go together: a store that has one of them without the other fails a contract, that of
/// `findNamedStyle` or that of `UUIDContainer::insert`.
DOM_API void appendPredefinedTextStyles(Styles& styles);

/// A single underline and nothing else.
DOM_API RunProps createHyperlinkRunProps();

} // namespace QN::DOM
