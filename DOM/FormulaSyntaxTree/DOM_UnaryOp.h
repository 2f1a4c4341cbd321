#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "DOM/FormulaSyntaxTree/DOM_BaseUnaryOp.h"

namespace QN::DOM::FormulaSyntaxTree {

/// One of the operators `UnaryPlus`, `UnaryMinus` and `UnaryPercent`.
template <UnaryOpType Type>
class UnaryOp final : public Reflectable<BaseUnaryOp> {
public:
    /// A null operand: a value to load into.
    UnaryOp() = default;
    /// A null operand fails the contract "_args[0]".
    explicit UnaryOp(ExprPtr arg) : Reflectable<BaseUnaryOp>(std::move(arg)) {}

    /// Another number of arguments fails the contract "exprs.size() == 1".
    std::unique_ptr<Expr> cloneWithArgs(std::vector<ExprPtr> exprs) const override;

    void accept(Expr::Visitor& visitor) override;
    void accept(Expr::ConstVisitor& visitor) const override;
    QN_VALUE(UnaryOp)

    BOOST_DESCRIBE_CLASS(UnaryOp, (BaseUnaryOp), (), (), ())
};

extern template class DOM_API UnaryOp<UnaryOpType::Plus>;
extern template class DOM_API UnaryOp<UnaryOpType::Minus>;
extern template class DOM_API UnaryOp<UnaryOpType::Percent>;

} // namespace QN::DOM::FormulaSyntaxTree
