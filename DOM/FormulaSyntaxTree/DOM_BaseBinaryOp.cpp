#include "DOM/FormulaSyntaxTree/DOM_BaseBinaryOp.h"

#include <utility>

#include "DOM/FormulaSyntaxTree/DOM_ExprTrees.h"
#include "Utils/Public/Assert.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

BaseBinaryOp::BaseBinaryOp(ExprPtr arg1, ExprPtr arg2) : _args{std::move(arg1), std::move(arg2)}
{
    QN_ASSERT(_args[0]);
    QN_ASSERT(_args[1]);
}

BaseBinaryOp& BaseBinaryOp::operator=(BaseBinaryOp&& other) noexcept
{
    std::array<ExprPtr, 2> args = std::move(other._args);
    _args.swap(args);
    return *this;
}

BaseBinaryOp::~BaseBinaryOp()
{
    destroyTrees(_args);
}

QN_DEFINE_SERIALIZE(BaseBinaryOp)

} // namespace QN::DOM::FormulaSyntaxTree
