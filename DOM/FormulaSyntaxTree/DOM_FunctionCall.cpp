#include "DOM/FormulaSyntaxTree/DOM_FunctionCall.h"

#include "DOM/FormulaSyntaxTree/DOM_ExprTrees.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

FunctionCall::~FunctionCall()
{
    destroyTrees(_args);
}

std::unique_ptr<Expr> FunctionCall::cloneWithArgs(std::vector<ExprPtr> exprs) const
{
    return std::make_unique<FunctionCall>(_funcType, _funcName, std::move(exprs));
}

void FunctionCall::accept(Expr::Visitor& visitor)
{
    visitor.visit(*this);
}

void FunctionCall::accept(Expr::ConstVisitor& visitor) const
{
    visitor.visit(*this);
}

bool FunctionCall::operator==(const FunctionCall& other) const
{
    return areDeeplyEqual(*this, other);
}

QN_DEFINE_SERIALIZE(FunctionCall)

} // namespace QN::DOM::FormulaSyntaxTree
