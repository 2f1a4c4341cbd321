#pragma once

#include <span>

#include "DOM/FormulaSyntaxTree/DOM_Array.h"
#include "DOM/FormulaSyntaxTree/DOM_Expr.h"

/// How the node classes destroy and copy what they own. Not for others: destroying or cloning a node does it.

namespace QN::DOM::FormulaSyntaxTree {

/// Destroys trees and leaves null pointers. Neither recurses nor allocates.
void destroyTrees(std::span<ExprPtr> trees) noexcept;

/// Copies the items of an array, those of arrays inside it included, without recursion. Null items stay null.
Array::Items cloneItems(const Array::Items& items);

} // namespace QN::DOM::FormulaSyntaxTree
