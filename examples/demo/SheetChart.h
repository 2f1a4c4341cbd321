#pragma once

#include "DOM/DOM.h"

namespace Demo {

/// Puts a line chart of the sheet's column of formulas over the sheet, with the first column as categories. Nothing of it
/// is text: names, titles and points are references to cells, by the identifiers of their rows and columns.
void addChart(QN::DOM::Table& table);

} // namespace Demo
