#include "DOM/FormulaSyntaxTree/DOM_BinaryOp.h"

#include "Utils/Public/Assert.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

template <BinaryOpType Type>
std::unique_ptr<Expr> BinaryOp<Type>::cloneWithArgs(std::vector<ExprPtr> exprs) const
{
    QN_ASSERT(exprs.size() == 2);
    return std::make_unique<BinaryOp>(std::move(exprs[0]), std::move(exprs[1]));
}

template <BinaryOpType Type>
void BinaryOp<Type>::accept(Expr::Visitor& visitor)
{
    visitor.visit(*this);
}

template <BinaryOpType Type>
void BinaryOp<Type>::accept(Expr::ConstVisitor& visitor) const
{
    visitor.visit(*this);
}

template <BinaryOpType Type>
bool BinaryOp<Type>::operator==(const BinaryOp& other) const
{
    return areDeeplyEqual(*this, other);
}

template <BinaryOpType Type>
void BinaryOp<Type>::serialize(cereal::JSONOutputArchive& archive) const
{
    saveMembers(archive, *this);
}

template <BinaryOpType Type>
void BinaryOp<Type>::serialize(cereal::JSONInputArchive& archive)
{
    loadMembers(archive, *this);
}

template class BinaryOp<BinaryOpType::Plus>;
template class BinaryOp<BinaryOpType::Minus>;
template class BinaryOp<BinaryOpType::Mul>;
template class BinaryOp<BinaryOpType::Div>;
template class BinaryOp<BinaryOpType::Pow>;
template class BinaryOp<BinaryOpType::Equal>;
template class BinaryOp<BinaryOpType::NotEqual>;
template class BinaryOp<BinaryOpType::Less>;
template class BinaryOp<BinaryOpType::LessOrEqual>;
template class BinaryOp<BinaryOpType::Greater>;
template class BinaryOp<BinaryOpType::GreaterOrEqual>;
template class BinaryOp<BinaryOpType::Concat>;
template class BinaryOp<BinaryOpType::Intersection>;
template class BinaryOp<BinaryOpType::Union>;

} // namespace QN::DOM::FormulaSyntaxTree
