#pragma once

#include <cstdint>

namespace QN::DOM::FormulaSyntaxTree {

/// The kind of an error value, as a number whose meaning the parser and the evaluator of formulas agree on. Any number
/// passes through unchanged.
enum class FormulaErrorType : std::int32_t {};

} // namespace QN::DOM::FormulaSyntaxTree

namespace QN::DOM {

using FormulaSyntaxTree::FormulaErrorType;

} // namespace QN::DOM
