#pragma once

#include <cstdint>

namespace QN::DOM::FormulaSyntaxTree {

/// The function that a call is of, as a number whose meaning the parser and the evaluator of formulas agree on. Any
/// number passes through unchanged.
enum class FormulaFunctionType : std::uint16_t {};

} // namespace QN::DOM::FormulaSyntaxTree

namespace QN::DOM {

using FormulaSyntaxTree::FormulaFunctionType;

} // namespace QN::DOM
