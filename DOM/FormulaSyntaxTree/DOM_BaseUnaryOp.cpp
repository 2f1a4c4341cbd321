#include "DOM/FormulaSyntaxTree/DOM_BaseUnaryOp.h"

#include <utility>

#include "DOM/FormulaSyntaxTree/DOM_ExprTrees.h"
#include "Utils/Public/Assert.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

BaseUnaryOp::BaseUnaryOp(ExprPtr arg) : _args{std::move(arg)}
{
    QN_ASSERT(_args[0]);
}

BaseUnaryOp& BaseUnaryOp::operator=(BaseUnaryOp&& other) noexcept
{
    std::array<ExprPtr, 1> args = std::move(other._args);
    _args.swap(args);
    return *this;
}

BaseUnaryOp::~BaseUnaryOp()
{
    destroyTrees(_args);
}

QN_DEFINE_SERIALIZE(BaseUnaryOp)

} // namespace QN::DOM::FormulaSyntaxTree
