#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Demo {

using CsvRecord = std::vector<std::string>;

/// The records of a text of comma-separated values (RFC 4180). A line ends in a line feed, with or without a carriage
/// return; lines of nothing are left out. A field in quotes may hold commas, line ends and, doubled, quotes. A quote that
/// is never closed takes the rest of the text.
std::vector<CsvRecord> readCsv(std::string_view text);

} // namespace Demo
