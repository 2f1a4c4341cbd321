#pragma once

#include "DOM/FormulaSyntaxTree/DOM_BasePrimitiveType.h"

namespace QN::DOM::FormulaSyntaxTree {

/// An argument that was left out.
class DOM_API Empty final : public Reflectable<BasePrimitiveType> {
public:
    QN_VALUE(Empty)
    QN_CONCRETE(Expr)

    BOOST_DESCRIBE_CLASS(Empty, (BasePrimitiveType), (), (), ())
};

} // namespace QN::DOM::FormulaSyntaxTree
