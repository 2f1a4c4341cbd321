#pragma once

#include <memory>
#include <string_view>

#include "DOM/DOM.h"

namespace Demo {

/// Parses a formula without its "=": numbers, texts, operators, calls, and references as "B2", "$B$2" or "B2:C9". The
/// references are to the rows and columns that stand at these places of the table now, and hold their identifiers: they
/// mean the same rows and columns wherever those come to stand later. Null for what is no formula.
std::unique_ptr<QN::DOM::FormulaSyntaxTree::Expr> parseFormula(std::string_view text,
                                                               const QN::DOM::Table& table);

} // namespace Demo
