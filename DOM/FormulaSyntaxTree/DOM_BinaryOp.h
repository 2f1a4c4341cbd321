#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "DOM/FormulaSyntaxTree/DOM_BaseBinaryOp.h"

namespace QN::DOM::FormulaSyntaxTree {

/// One of the operators `Plus`, `Minus`, `Mul`, `Div`, `Pow`, `Equal`, `NotEqual`, `Less`, `LessOrEqual`, `Greater`,
/// `GreaterOrEqual`, `Concat`, `Intersection` and `Union`.
template <BinaryOpType Type>
class BinaryOp final : public Reflectable<BaseBinaryOp> {
public:
    /// Null operands: a value to load into.
    BinaryOp() = default;
    /// A null operand fails the contract "_args[0]" or "_args[1]".
    BinaryOp(ExprPtr arg1, ExprPtr arg2) : Reflectable<BaseBinaryOp>(std::move(arg1), std::move(arg2)) {}

    /// Another number of arguments fails the contract "exprs.size() == 2".
    std::unique_ptr<Expr> cloneWithArgs(std::vector<ExprPtr> exprs) const override;

    void accept(Expr::Visitor& visitor) override;
    void accept(Expr::ConstVisitor& visitor) const override;
    QN_VALUE(BinaryOp)

    BOOST_DESCRIBE_CLASS(BinaryOp, (BaseBinaryOp), (), (), ())
};

extern template class DOM_API BinaryOp<BinaryOpType::Plus>;
extern template class DOM_API BinaryOp<BinaryOpType::Minus>;
extern template class DOM_API BinaryOp<BinaryOpType::Mul>;
extern template class DOM_API BinaryOp<BinaryOpType::Div>;
extern template class DOM_API BinaryOp<BinaryOpType::Pow>;
extern template class DOM_API BinaryOp<BinaryOpType::Equal>;
extern template class DOM_API BinaryOp<BinaryOpType::NotEqual>;
extern template class DOM_API BinaryOp<BinaryOpType::Less>;
extern template class DOM_API BinaryOp<BinaryOpType::LessOrEqual>;
extern template class DOM_API BinaryOp<BinaryOpType::Greater>;
extern template class DOM_API BinaryOp<BinaryOpType::GreaterOrEqual>;
extern template class DOM_API BinaryOp<BinaryOpType::Concat>;
extern template class DOM_API BinaryOp<BinaryOpType::Intersection>;
extern template class DOM_API BinaryOp<BinaryOpType::Union>;

} // namespace QN::DOM::FormulaSyntaxTree
