#include "DOM/FormulaSyntaxTree/DOM_UnaryOp.h"

#include "Utils/Public/Assert.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

template <UnaryOpType Type>
std::unique_ptr<Expr> UnaryOp<Type>::cloneWithArgs(std::vector<ExprPtr> exprs) const
{
    QN_ASSERT(exprs.size() == 1);
    return std::make_unique<UnaryOp>(std::move(exprs[0]));
}

template <UnaryOpType Type>
void UnaryOp<Type>::accept(Expr::Visitor& visitor)
{
    visitor.visit(*this);
}

template <UnaryOpType Type>
void UnaryOp<Type>::accept(Expr::ConstVisitor& visitor) const
{
    visitor.visit(*this);
}

template <UnaryOpType Type>
bool UnaryOp<Type>::operator==(const UnaryOp& other) const
{
    return areDeeplyEqual(*this, other);
}

template <UnaryOpType Type>
void UnaryOp<Type>::serialize(cereal::JSONOutputArchive& archive) const
{
    saveMembers(archive, *this);
}

template <UnaryOpType Type>
void UnaryOp<Type>::serialize(cereal::JSONInputArchive& archive)
{
    loadMembers(archive, *this);
}

template class UnaryOp<UnaryOpType::Plus>;
template class UnaryOp<UnaryOpType::Minus>;
template class UnaryOp<UnaryOpType::Percent>;

} // namespace QN::DOM::FormulaSyntaxTree
