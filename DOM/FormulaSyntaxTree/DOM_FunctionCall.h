#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "DOM/FormulaSyntaxTree/DOM_BaseCompoundExpr.h"
#include "DOM/FormulaSyntaxTree/DOM_FormulaFunctionType.h"

namespace QN::DOM::FormulaSyntaxTree {

/// A call of a function. A call without arguments can be held, but not cloned, nor can a tree that it stands in: that
/// stops the process at "argsRange.begin() != end". A formula that is to be copied gives such a call an `Empty`.
class DOM_API FunctionCall final : public Reflectable<BaseCompoundExpr> {
public:
    FunctionCall() = default;
    FunctionCall(FormulaFunctionType funcType, std::string funcName, std::vector<ExprPtr> args)
        : _funcType(funcType), _funcName(std::move(funcName)), _args(std::move(args))
    {
    }
    FunctionCall(const FunctionCall&) = delete;
    FunctionCall& operator=(const FunctionCall&) = delete;
    FunctionCall(FunctionCall&&) noexcept = default;
    FunctionCall& operator=(FunctionCall&&) noexcept = default;
    ~FunctionCall() override;

    FormulaFunctionType getFuncType() const { return _funcType; }
    const std::string& getFuncName() const { return _funcName; }

    const std::vector<ExprPtr>& getArgs() const { return _args; }
    std::vector<ExprPtr>& getArgs() { return _args; }

    ArgsRange getArgsRange() override { return _args; }
    CArgsRange getCArgsRange() const override { return _args; }
    std::unique_ptr<Expr> cloneWithArgs(std::vector<ExprPtr> exprs) const override;

    void accept(Expr::Visitor& visitor) override;
    void accept(Expr::ConstVisitor& visitor) const override;
    QN_VALUE(FunctionCall)

private:
    FormulaFunctionType _funcType{};
    std::string _funcName;
    std::vector<ExprPtr> _args;

    BOOST_DESCRIBE_CLASS(FunctionCall, (BaseCompoundExpr), (), (), (_funcType, _funcName, _args))
};

} // namespace QN::DOM::FormulaSyntaxTree
