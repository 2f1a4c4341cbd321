#pragma once

#include <iosfwd>

#include "DOM/DOM.h"

namespace Demo {

/// Edits a sheet as collaborators do at the same time: rows and columns are inserted, removed so that their places stay
/// known, and put back. Reports what a formula and the sum of all of them read and give after each edit: their references
/// hold identifiers, so nobody rewrites them. One removed row is left at the end.
void editSheet(QN::DOM::Table& table, std::ostream& report);

} // namespace Demo
