#include "DOM/FormulaSyntaxTree/DOM_ExprTransformations.h"

#include <deque>
#include <type_traits>

#include "DOM/FormulaSyntaxTree/DOM_ExprNodes.h"
#include "DOM/FormulaSyntaxTree/DOM_ExprTrees.h"
#include "Utils/Public/Assert.h"

namespace QN::DOM::FormulaSyntaxTree {

namespace {

template <class Range>
auto getBeginLast(Range argsRange)
{
    const auto end = argsRange.end();
    QN_ASSERT(argsRange.begin() != end);
    return std::pair(argsRange.begin(), end - 1);
}

/// Lays out a tree of `Expr` or of const `Expr`. As a visitor it takes a node with arguments apart and answers whether
/// the node was one.
template <class ExprType>
class ExprStackCreator {
    using Compound = std::conditional_t<std::is_const_v<ExprType>, const BaseCompoundExpr, BaseCompoundExpr>;
    using Iterators = decltype(getBeginLastArgsIters(std::declval<Compound&>()));

    struct ArgsRange {
        Compound* owner;
        Iterators beginLast;
    };

public:
    bool operator()(Compound& node)
    {
        _ranges.push_back({&node, getBeginLastArgsIters(node)});
        return true;
    }

    bool operator()(ExprType& /*leaf*/) { return false; }

    std::vector<ExprType*> create(ExprType& root)
    {
        std::vector<ExprType*> nodes;
        if (!::QN::visit<bool>(root, *this)) {
            nodes.push_back(&root);
        }
        while (!_ranges.empty()) {
            ExprType& arg = **_ranges.back().beginLast.first;
            if (!::QN::visit<bool>(arg, *this)) {
                nodes.push_back(&arg);
                advance(nodes);
            }
        }
        return nodes;
    }

private:
    /// Goes on behind the current argument. Nodes whose last argument it was are complete.
    void advance(std::vector<ExprType*>& nodes)
    {
        while (!_ranges.empty()) {
            auto& [arg, last] = _ranges.back().beginLast;
            if (arg != last) {
                ++arg;
                return;
            }
            nodes.push_back(_ranges.back().owner);
            _ranges.pop_back();
        }
    }

    std::vector<ArgsRange> _ranges;
};

/// Copies one node, the copies of whose children are the last of the stack.
struct ExprCloner {
    std::unique_ptr<Expr> operator()(const BaseCompoundExpr& node)
    {
        const std::size_t elements = node.getCArgsRange().size();
        QN_ASSERT(_clonesStack.size() >= elements);
        std::vector<ExprPtr> args;
        args.reserve(elements);
        const auto begin = _clonesStack.end() - static_cast<std::ptrdiff_t>(elements);
        for (auto clone = begin; clone != _clonesStack.end(); ++clone) {
            args.emplace_back(std::move(*clone));
        }
        _clonesStack.erase(begin, _clonesStack.end());
        return node.cloneWithArgs(std::move(args));
    }

    std::unique_ptr<Expr> operator()(const Expr& leaf)
    {
        std::unique_ptr<Expr> clone;
        leaf.cloneTo(clone);
        return clone;
    }

    std::deque<std::unique_ptr<Expr>> _clonesStack;
};

template <class Cloner>
std::unique_ptr<Expr> foldNodes(const std::vector<const Expr*>& nodes, ExprModifier modifier,
                                Cloner exprCloner)
{
    for (const Expr* const node : nodes) {
        auto clone = ::QN::visit<std::unique_ptr<Expr>>(derefRequired(node), exprCloner);
        exprCloner._clonesStack.push_back(modifier(std::move(clone)));
    }
    QN_ASSERT(exprCloner._clonesStack.size() == 1);
    return std::move(exprCloner._clonesStack.front());
}

/// Arrays whose items are still to be copied.
using PendingItems = std::vector<std::pair<const Array::Items*, Array::Items*>>;

std::unique_ptr<Expr> beginArray(const Array& array, PendingItems& pending)
{
    auto clone = std::make_unique<Array>();
    pending.emplace_back(&array.getItems(), &clone->getItems());
    return clone;
}

/// Leaves the items of an array for later.
struct ArrayDeferringCloner : ExprCloner {
    explicit ArrayDeferringCloner(PendingItems& pendingItems) : pending(pendingItems) {}

    using ExprCloner::operator();
    std::unique_ptr<Expr> operator()(const Array& array) { return beginArray(array, pending); }

    PendingItems& pending;
};

/// Copies an item of an array, the items of arrays in it left for later.
struct ItemCloner {
    std::unique_ptr<Expr> operator()(const BaseCompoundExpr& node) const
    {
        return foldNodes(toExprStack(node), defaultModifier, ArrayDeferringCloner(pending));
    }

    std::unique_ptr<Expr> operator()(const Array& array) const { return beginArray(array, pending); }
    std::unique_ptr<Expr> operator()(const Expr& leaf) const { return ExprCloner()(leaf); }

    PendingItems& pending;
};

} // namespace

std::vector<const Expr*> toExprStack(const Expr& root)
{
    return ExprStackCreator<const Expr>().create(root);
}

std::vector<Expr*> toExprStack(Expr& root)
{
    return ExprStackCreator<Expr>().create(root);
}

std::unique_ptr<Expr> cloneToSyntaxTree(const std::vector<const Expr*>& nodes, ExprModifier modifier)
{
    return foldNodes(nodes, modifier, ExprCloner());
}

Array::Items cloneItems(const Array::Items& items)
{
    Array::Items clone;
    PendingItems pending{{&items, &clone}};
    while (!pending.empty()) {
        const auto [source, target] = pending.back();
        pending.pop_back();
        target->reserve(source->size());
        for (const std::vector<ExprPtr>& row : *source) {
            std::vector<ExprPtr>& cloneRow = target->emplace_back();
            cloneRow.reserve(row.size());
            for (const ExprPtr& item : row) {
                cloneRow.emplace_back(item ? ::QN::visit<std::unique_ptr<Expr>>(*item, ItemCloner{pending})
                                           : nullptr);
            }
        }
    }
    return clone;
}

std::unique_ptr<Expr> defaultModifier(std::unique_ptr<Expr> expr)
{
    return expr;
}

std::pair<BaseCompoundExpr::ArgsRange::iterator, BaseCompoundExpr::ArgsRange::iterator>
getBeginLastArgsIters(BaseCompoundExpr& node)
{
    return getBeginLast(node.getArgsRange());
}

std::pair<BaseCompoundExpr::CArgsRange::iterator, BaseCompoundExpr::CArgsRange::iterator>
getBeginLastArgsIters(const BaseCompoundExpr& node)
{
    return getBeginLast(node.getCArgsRange());
}

std::string resolveURLByDefault(std::string docURL)
{
    return docURL;
}

} // namespace QN::DOM::FormulaSyntaxTree
