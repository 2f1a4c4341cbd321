#include "DOM/FormulaSyntaxTree/DOM_BaseCompoundExpr.h"

#include "DOM/FormulaSyntaxTree/DOM_ExprTransformations.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

namespace {

std::unique_ptr<Expr> cloneTree(const Expr& root)
{
    return cloneToSyntaxTree(toExprStack(root), defaultModifier);
}

} // namespace

void BaseCompoundExpr::cloneTo(std::shared_ptr<Expr>& target) const
{
    target = cloneTree(*this);
}

void BaseCompoundExpr::cloneTo(std::unique_ptr<Expr>& target) const
{
    target = cloneTree(*this);
}

QN_DEFINE_SERIALIZE(BaseCompoundExpr)

} // namespace QN::DOM::FormulaSyntaxTree
