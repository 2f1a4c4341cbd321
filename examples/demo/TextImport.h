#pragma once

#include <filesystem>
#include <string_view>

#include "DOM/DOM.h"

namespace Demo {

/// Appends the lines of a text to a document as paragraphs.
///
/// - `#`, up to five of them, and a blank begin a heading of that level. The first line of all, if it is one of level 1, is
///   the title, also of the document, and `##` is the first level then. Headings are numbered.
/// - `-` and a blank begin an item of a bullet list, two blanks more before it those of the next level.
/// - `![caption](file)` alone on a line is a picture, from a file in the given folder. One that cannot be read is text.
/// - `**` begins and ends bold text, `*` italic text; a mark that is not closed in its line stands for itself.
/// - A tab is a tab.
void importText(std::string_view text, const std::filesystem::path& folder, QN::DOM::Document& document);

} // namespace Demo
