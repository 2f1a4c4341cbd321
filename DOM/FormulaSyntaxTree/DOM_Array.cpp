#include "DOM/FormulaSyntaxTree/DOM_Array.h"

#include "DOM/FormulaSyntaxTree/DOM_ExprTrees.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

Array::Array(const Array& other) : Reflectable<BasePrimitiveType>(other), _items(cloneItems(other._items)) {}

QN_DEFINE_COPY_ASSIGNMENT(Array)

Array::~Array()
{
    for (std::vector<ExprPtr>& row : _items) {
        destroyTrees(row);
    }
}

bool Array::operator==(const Array& other) const
{
    return areDeeplyEqual(*this, other);
}

QN_DEFINE_SERIALIZE(Array)
QN_DEFINE_CONCRETE(Array, Expr)

} // namespace QN::DOM::FormulaSyntaxTree
