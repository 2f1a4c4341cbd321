#include "DOM/FormulaSyntaxTree/DOM_ArgumentsList.h"

#include "DOM/FormulaSyntaxTree/DOM_ExprTrees.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

ArgumentsList::~ArgumentsList()
{
    destroyTrees(_args);
}

std::unique_ptr<Expr> ArgumentsList::cloneWithArgs(std::vector<ExprPtr> exprs) const
{
    return std::make_unique<ArgumentsList>(std::move(exprs));
}

void ArgumentsList::accept(Expr::Visitor& visitor)
{
    visitor.visit(*this);
}

void ArgumentsList::accept(Expr::ConstVisitor& visitor) const
{
    visitor.visit(*this);
}

bool ArgumentsList::operator==(const ArgumentsList& other) const
{
    return areDeeplyEqual(*this, other);
}

QN_DEFINE_SERIALIZE(ArgumentsList)

} // namespace QN::DOM::FormulaSyntaxTree
