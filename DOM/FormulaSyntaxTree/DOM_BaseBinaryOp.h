#pragma once

#include <array>

#include "DOM/FormulaSyntaxTree/DOM_BaseCompoundExpr.h"

namespace QN::DOM::FormulaSyntaxTree {

/// An operator with two operands.
class DOM_API BaseBinaryOp : public Reflectable<BaseCompoundExpr> {
public:
    /// A null operand fails the contract "_args[0]" or "_args[1]".
    BaseBinaryOp(ExprPtr arg1, ExprPtr arg2);
    BaseBinaryOp(const BaseBinaryOp&) = delete;
    BaseBinaryOp& operator=(const BaseBinaryOp&) = delete;
    BaseBinaryOp(BaseBinaryOp&&) noexcept = default;
    /// `other` may be a node of this tree.
    BaseBinaryOp& operator=(BaseBinaryOp&& other) noexcept;
    ~BaseBinaryOp() override;

    const ExprPtr& getArg1() const { return _args[0]; }
    ExprPtr& getArg1() { return _args[0]; }

    const ExprPtr& getArg2() const { return _args[1]; }
    ExprPtr& getArg2() { return _args[1]; }

    ArgsRange getArgsRange() override { return _args; }
    CArgsRange getCArgsRange() const override { return _args; }

    QN_SERIALIZE(BaseBinaryOp)

protected:
    /// Null operands: a value to load into.
    BaseBinaryOp() = default;

private:
    std::array<ExprPtr, 2> _args;

    BOOST_DESCRIBE_CLASS(BaseBinaryOp, (BaseCompoundExpr), (), (), (_args))
};

} // namespace QN::DOM::FormulaSyntaxTree
