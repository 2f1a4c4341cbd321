#pragma once

#include "Utils/Public/Export.h"

namespace QN::DOM {

class Document;

/// Gives a document what new ones start with, as far as it lacks it: the predefined numbered lists and text styles.
DOM_API void appendPredefinedEntities(Document& document);

} // namespace QN::DOM
