#include "DOM/FormulaSyntaxTree/DOM_Expr.h"

#include <span>
#include <typeinfo>
#include <utility>
#include <vector>

#include "DOM/FormulaSyntaxTree/DOM_ExprNodes.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

namespace {

using Pairs = std::vector<std::pair<const Expr*, const Expr*>>;

/// Enters the pairs of children that are still to be compared.
/// @return false when the lists have different lengths or a null stands against a node.
bool addPairs(Pairs& pairs, std::span<const ExprPtr> left, std::span<const ExprPtr> right)
{
    if (left.size() != right.size()) {
        return false;
    }
    for (std::size_t index = 0; index < left.size(); ++index) {
        const Expr* const leftChild = left[index].get();
        const Expr* const rightChild = right[index].get();
        if (leftChild == rightChild) {
            continue;
        }
        if (leftChild == nullptr || rightChild == nullptr) {
            return false;
        }
        pairs.emplace_back(leftChild, rightChild);
    }
    return true;
}

/// Compares what a node has besides its children with another node of its type, and enters the children.
struct NodeComparator {
    bool operator()(const BaseCompoundExpr& left) const
    {
        return addPairs(pairs, left.getCArgsRange(),
                        static_cast<const BaseCompoundExpr&>(other).getCArgsRange());
    }

    bool operator()(const FunctionCall& left) const
    {
        const auto& right = static_cast<const FunctionCall&>(other);
        return left.getFuncType() == right.getFuncType() && left.getFuncName() == right.getFuncName() &&
               addPairs(pairs, left.getArgs(), right.getArgs());
    }

    bool operator()(const Array& left) const
    {
        const Array::Items& leftRows = left.getItems();
        const Array::Items& rightRows = static_cast<const Array&>(other).getItems();
        if (leftRows.size() != rightRows.size()) {
            return false;
        }
        for (std::size_t row = 0; row < leftRows.size(); ++row) {
            if (!addPairs(pairs, leftRows[row], rightRows[row])) {
                return false;
            }
        }
        return true;
    }

    template <class Leaf>
    requires(!std::is_base_of_v<BaseCompoundExpr, Leaf>) bool operator()(const Leaf& left) const
    {
        return left == static_cast<const Leaf&>(other);
    }

    const Expr& other;
    Pairs& pairs;
};

} // namespace

bool areDeeplyEqual(const Expr& left, const Expr& right)
{
    Pairs pairs{{&left, &right}};
    while (!pairs.empty()) {
        const auto [leftNode, rightNode] = pairs.back();
        pairs.pop_back();
        if (typeid(*leftNode) != typeid(*rightNode) ||
            !::QN::visit<bool>(*leftNode, NodeComparator{*rightNode, pairs})) {
            return false;
        }
    }
    return true;
}

QN_DEFINE_SERIALIZE(Expr)

} // namespace QN::DOM::FormulaSyntaxTree
