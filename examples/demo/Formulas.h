#pragma once

#include <cstdint>
#include <string_view>

#include "DOM/DOM.h"

namespace Demo {

/// The functions that this program knows. The library holds them as numbers without a meaning.
enum class Function : std::uint16_t { Unknown = 0, Sum = 1, Average = 2, Min = 3, Max = 4, Count = 5 };

Function findFunction(std::string_view name);

/// A reference to one cell, by the identifiers of its row and column.
QN::DOM::FormulaSyntaxTree::ExprPtr makeReference(const QN::DOM::Table& table, const QN::CellIndex& cell);
/// A reference to the cells between two corners, both included, by the identifiers of their rows and columns.
QN::DOM::FormulaSyntaxTree::ExprPtr makeReference(const QN::DOM::Table& table, const QN::CellIndex& first,
                                                  const QN::CellIndex& last);
/// A call of a function with one argument.
QN::DOM::FormulaSyntaxTree::ExprPtr makeCall(Function function, QN::DOM::FormulaSyntaxTree::ExprPtr argument);

} // namespace Demo
