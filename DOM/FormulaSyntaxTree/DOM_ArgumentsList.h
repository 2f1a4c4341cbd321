#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "DOM/FormulaSyntaxTree/DOM_BaseCompoundExpr.h"

namespace QN::DOM::FormulaSyntaxTree {

/// Several expressions in the place of one. An empty list can be held, but not cloned.
class DOM_API ArgumentsList final : public Reflectable<BaseCompoundExpr> {
public:
    ArgumentsList() = default;
    explicit ArgumentsList(std::vector<ExprPtr> args) : _args(std::move(args)) {}
    ArgumentsList(const ArgumentsList&) = delete;
    ArgumentsList& operator=(const ArgumentsList&) = delete;
    ArgumentsList(ArgumentsList&&) noexcept = default;
    ArgumentsList& operator=(ArgumentsList&&) noexcept = default;
    ~ArgumentsList() override;

    const std::vector<ExprPtr>& getArgs() const { return _args; }
    std::vector<ExprPtr>& getArgs() { return _args; }

    ArgsRange getArgsRange() override { return _args; }
    CArgsRange getCArgsRange() const override { return _args; }
    std::unique_ptr<Expr> cloneWithArgs(std::vector<ExprPtr> exprs) const override;

    void accept(Expr::Visitor& visitor) override;
    void accept(Expr::ConstVisitor& visitor) const override;
    QN_VALUE(ArgumentsList)

private:
    std::vector<ExprPtr> _args;

    BOOST_DESCRIBE_CLASS(ArgumentsList, (BaseCompoundExpr), (), (), (_args))
};

} // namespace QN::DOM::FormulaSyntaxTree
