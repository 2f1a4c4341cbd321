#pragma once

#include <string_view>

#include "DOM/DOM.h"

namespace Demo {

/// Appends the lines of a text to a document as paragraphs. A line that begins with one to five `#` and a blank is a heading
/// of that level, the first line of all, if it is one of level 1, the title. `**` begins and ends bold text, `*` italic
/// text; a mark that is not closed in its line stands for itself. A tab is a tab.
void importText(std::string_view text, QN::DOM::Document& document);

} // namespace Demo
