#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "DOM/FormulaSyntaxTree/DOM_BaseCompoundExpr.h"
#include "Utils/Public/CallableRef.h"

/// Changed copies of trees: a tree is laid out as a sequence of its nodes and put together again from it, and a
/// caller's modifier may replace each node on the way. No operation recurses over the depth of a tree.

namespace QN::DOM::FormulaSyntaxTree {

/// All nodes of a tree, children before their parents, the root last. An `Array` counts as one node. A node without
/// arguments that should have some fails the contract "argsRange.begin() != end", a null argument "plainPtr".
DOM_API std::vector<const Expr*> toExprStack(const Expr& root);
DOM_API std::vector<Expr*> toExprStack(Expr& root);

/// Takes a new node whose arguments are in place, and gives the node to go on with.
using ExprModifier = CallableRef<std::unique_ptr<Expr>(std::unique_ptr<Expr>)>;

/// Builds a new tree from the nodes of another one in the order of `toExprStack`. Each is copied with the copies of its
/// children as arguments and passed through the modifier, children before parents; the items of an `Array` are not. A
/// sequence that does not fold to one tree fails the contract "exprCloner._clonesStack.size() == 1", and a node with
/// too few nodes before it "_clonesStack.size() >= elements". A modifier that gives null leaves a null argument behind: a
/// call or a list holds it, an operator fails its contract, and for the root null is the result.
DOM_API std::unique_ptr<Expr> cloneToSyntaxTree(const std::vector<const Expr*>& nodes, ExprModifier modifier);

/// Returns its argument.
DOM_API std::unique_ptr<Expr> defaultModifier(std::unique_ptr<Expr> expr);

/// The iterators to the first and to the last argument, which is not the end. A node without arguments fails the
/// contract "argsRange.begin() != end".
DOM_API std::pair<BaseCompoundExpr::ArgsRange::iterator, BaseCompoundExpr::ArgsRange::iterator>
getBeginLastArgsIters(BaseCompoundExpr& node);
DOM_API std::pair<BaseCompoundExpr::CArgsRange::iterator, BaseCompoundExpr::CArgsRange::iterator>
getBeginLastArgsIters(const BaseCompoundExpr& node);

/// Returns its argument: the document of a reference is the one that it names.
DOM_API std::string resolveURLByDefault(std::string docURL);

} // namespace QN::DOM::FormulaSyntaxTree
