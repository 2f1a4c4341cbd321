#pragma once

#include "DOM/DOM.h"

namespace Demo {

/// Gives a document A4 pages with its title in the header and "Page 1 of 9" in the footer.
void setUpPages(QN::DOM::Document& document);

} // namespace Demo
