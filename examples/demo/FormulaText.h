#pragma once

#include <string>

#include "DOM/DOM.h"

namespace Demo {

/// A formula as it reads now, with its "=". What a reference named and is no longer there reads "#REF!".
std::string toText(const QN::DOM::FormulaSyntaxTree::Expr& expr, const QN::DOM::Table& table);

} // namespace Demo
