#include "DOM/FormulaSyntaxTree/DOM_ExprTrees.h"

#include <memory>
#include <utility>
#include <vector>

#include "DOM/FormulaSyntaxTree/DOM_ExprNodes.h"

namespace QN::DOM::FormulaSyntaxTree {

namespace {

/// Drops the null pointers at the end of a list.
/// @return the last child, null when there is none.
ExprPtr* trimToLastChild(std::vector<ExprPtr>& children)
{
    while (!children.empty() && !children.back()) {
        children.pop_back();
    }
    return children.empty() ? nullptr : &children.back();
}

/// Finds the last child that a node still has.
struct LastChild {
    ExprPtr* operator()(Expr& /*leaf*/) const { return nullptr; }
    ExprPtr* operator()(ArgumentsList& node) const { return trimToLastChild(node.getArgs()); }
    ExprPtr* operator()(FunctionCall& node) const { return trimToLastChild(node.getArgs()); }

    ExprPtr* operator()(BaseUnaryOp& node) const { return node.getArg() ? &node.getArg() : nullptr; }

    ExprPtr* operator()(BaseBinaryOp& node) const
    {
        if (node.getArg2()) {
            return &node.getArg2();
        }
        return node.getArg1() ? &node.getArg1() : nullptr;
    }

    ExprPtr* operator()(Array& node) const
    {
        Array::Items& items = node.getItems();
        while (!items.empty()) {
            if (ExprPtr* const child = trimToLastChild(items.back())) {
                return child;
            }
            items.pop_back();
        }
        return nullptr;
    }
};

ExprPtr* findLastChild(Expr& node)
{
    return ::QN::visit<ExprPtr*>(node, LastChild{});
}

/// Goes down the last children and back up again, deleting nodes that have no children left. On the way down each node
/// keeps, in the place of the child that is being visited, the pointer to its own parent; the root points to itself.
void destroyTree(std::unique_ptr<Expr> tree) noexcept
{
    Expr* node = tree.release();
    Expr* parent = node;
    while (true) {
        if (ExprPtr* const slot = findLastChild(*node)) {
            Expr* const child = slot->getPtr().release();
            slot->getPtr().reset(parent);
            parent = node;
            node = child;
            continue;
        }
        const std::unique_ptr<Expr> childless(node);
        if (parent == node) {
            return;
        }
        node = parent;
        parent = findLastChild(*node)->getPtr().release();
    }
}

} // namespace

void destroyTrees(std::span<ExprPtr> trees) noexcept
{
    for (ExprPtr& tree : trees) {
        if (tree) {
            destroyTree(std::move(tree.getPtr()));
        }
    }
}

} // namespace QN::DOM::FormulaSyntaxTree
