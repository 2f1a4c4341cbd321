#pragma once

#include <string>
#include <string_view>

#include "DOM/DOM.h"

namespace Demo {

/// Appends a CSV text to a document as a worksheet, which is a block of the document like any other. The first record
/// names the columns. References of formulas count rows and columns of the file, "A1" being the first name.
///
/// Above the header row stand two more: the title, in merged cells, and the sum of each column of formulas. A file
/// without formulas gets a column of them that sums each row. Columns have number formats; the data has a filter and the
/// formulas a conditional format. Throws `std::runtime_error` if the text has no records, or more than
/// a table takes.
QN::DOM::Table& importCsv(std::string_view text, const std::string& title, QN::DOM::Document& document);

} // namespace Demo
