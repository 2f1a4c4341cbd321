#include "DOM/FormulaSyntaxTree/DOM_Label.h"

#include <boost/functional/hash.hpp>

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::FormulaSyntaxTree {

QN_DEFINE_VALUE(Label)
QN_DEFINE_CONCRETE(Label, Expr)

std::size_t hash_value(const Label& label)
{
    std::size_t seed = 0;
    boost::hash_combine(seed, label.getLabel());
    boost::hash_combine(seed, label.getDocURL());
    boost::hash_combine(seed, label.getTableAddress());
    return seed;
}

} // namespace QN::DOM::FormulaSyntaxTree
