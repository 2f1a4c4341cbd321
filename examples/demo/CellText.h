#pragma once

#include <string>

#include "DOM/DOM.h"
#include "SheetValues.h"

namespace Demo {

/// A value as a format shows it: as much of formatting as the formats of this demo need. Without a format a number has as
/// many digits as it takes.
std::string toText(const Value& value, const QN::DOM::CellFormat* format);

/// The format of a cell, or else of its column; null for none.
const QN::DOM::CellFormat* findFormat(const QN::DOM::Table& table, const QN::CellIndex& cell);

} // namespace Demo
