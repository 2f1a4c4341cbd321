#pragma once

#include "Utils/Public/Export.h"

namespace QN::DOM {

class Document;

/// Gives a document what new ones start with, as far as it lacks it: the predefined numbered lists and text styles.
/// A text style of a predefined type under another `UUID` than the type's, or another one under that `UUID`, fails the
/// contracts of `appendPredefinedTextStyles`.
DOM_API void appendPredefinedEntities(Document& document);

} // namespace QN::DOM
