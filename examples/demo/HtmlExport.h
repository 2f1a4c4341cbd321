#pragma once

#include <iosfwd>

#include "DOM/DOM.h"

namespace Demo {

/// Writes a page that shows the paragraphs of a document. The library stores levels of formatting and leaves their effect to
/// its users; this is one user: it gives each named style a CSS class, and what is said directly becomes a `style` attribute.
void exportHtml(const QN::DOM::Document& document, std::ostream& out);

} // namespace Demo
