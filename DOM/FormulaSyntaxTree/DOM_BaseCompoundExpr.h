#pragma once

#include <memory>
#include <span>
#include <vector>

#include "DOM/FormulaSyntaxTree/DOM_Expr.h"

namespace QN::DOM::FormulaSyntaxTree {

/// A node that is made of arguments. It is destroyed without recursion.
class DOM_API BaseCompoundExpr : public Reflectable<Expr> {
public:
    using ArgsRange = std::span<ExprPtr>;
    using CArgsRange = std::span<const ExprPtr>;

    /// The arguments in order. Arguments must not be added or removed while the range is in use.
    virtual ArgsRange getArgsRange() = 0;
    virtual CArgsRange getCArgsRange() const = 0;

    /// A node of the same kind with other arguments, as many as the kind takes.
    virtual std::unique_ptr<Expr> cloneWithArgs(std::vector<ExprPtr> exprs) const = 0;

    /// Copies the whole tree without recursion over its depth. A node without arguments, in here or further down, stops
    /// the process at "argsRange.begin() != end", although it can be built, saved, loaded, compared and destroyed. A
    /// null argument fails "plainPtr".
    void cloneTo(std::shared_ptr<Expr>& target) const final;
    void cloneTo(std::unique_ptr<Expr>& target) const final;

    QN_SERIALIZE(BaseCompoundExpr)

    BOOST_DESCRIBE_CLASS(BaseCompoundExpr, (Expr), (), (), ())
};

} // namespace QN::DOM::FormulaSyntaxTree
