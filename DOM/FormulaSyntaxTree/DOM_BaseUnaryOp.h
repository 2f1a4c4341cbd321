#pragma once

#include <array>

#include "DOM/FormulaSyntaxTree/DOM_BaseCompoundExpr.h"

namespace QN::DOM::FormulaSyntaxTree {

/// An operator with one operand.
class DOM_API BaseUnaryOp : public Reflectable<BaseCompoundExpr> {
public:
    /// A null operand fails the contract "_args[0]".
    explicit BaseUnaryOp(ExprPtr arg);
    BaseUnaryOp(const BaseUnaryOp&) = delete;
    BaseUnaryOp& operator=(const BaseUnaryOp&) = delete;
    BaseUnaryOp(BaseUnaryOp&&) noexcept = default;
    /// `other` may be a node of this tree.
    BaseUnaryOp& operator=(BaseUnaryOp&& other) noexcept;
    ~BaseUnaryOp() override;

    const ExprPtr& getArg() const { return _args[0]; }
    ExprPtr& getArg() { return _args[0]; }

    ArgsRange getArgsRange() override { return _args; }
    CArgsRange getCArgsRange() const override { return _args; }

    QN_SERIALIZE(BaseUnaryOp)

protected:
    /// A null operand: a value to load into.
    BaseUnaryOp() = default;

private:
    std::array<ExprPtr, 1> _args;

    BOOST_DESCRIBE_CLASS(BaseUnaryOp, (BaseCompoundExpr), (), (), (_args))
};

} // namespace QN::DOM::FormulaSyntaxTree
