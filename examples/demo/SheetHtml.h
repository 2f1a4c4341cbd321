#pragma once

#include <iosfwd>

#include "DOM/DOM.h"

namespace Demo {

/// Writes a sheet as a table: its charts, the rows above its data and the first rows of data that its filter shows, with
/// formats, merged cells and conditional formats.
void exportSheet(const QN::DOM::Table& table, const QN::DOM::Document& document, std::ostream& out);

/// The rules of CSS that such a table needs.
extern const char* const SheetCss;

} // namespace Demo
