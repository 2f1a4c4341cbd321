#pragma once

#include <string>
#include <string_view>

#include "DOM/DOM.h"

/// Small helpers for text that several parts of the demo share.

namespace Demo {

/// With so many decimals, and a point whatever the locale.
std::string toFixed(double value, int decimals);

/// The name of a column in a reference: A to Z, AA, AB and so on.
std::string toColumnName(QN::ColumnIndex column);

/// Text between tags and in attributes. Control characters that HTML does not allow are left out.
std::string escapeHtml(std::string_view text);

/// For `data:` addresses.
std::string toBase64(std::string_view bytes);

} // namespace Demo
