#pragma once

#include <iosfwd>

#include "DOM/DOM.h"

namespace Demo {

/// Writes a page that shows a document. The library stores levels of formatting and leaves their effect to its users; this
/// is one user: it gives each named style a CSS class, and what is said directly becomes a `style` attribute. The text
/// and each worksheet are a sheet of paper with the document's header and footer.
void exportHtml(const QN::DOM::Document& document, std::ostream& out);

} // namespace Demo
