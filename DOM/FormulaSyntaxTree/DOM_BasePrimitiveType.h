#pragma once

#include "DOM/FormulaSyntaxTree/DOM_Expr.h"

namespace QN::DOM::FormulaSyntaxTree {

/// A value that stands in a formula as it is.
class DOM_API BasePrimitiveType : public Reflectable<Expr> {
public:
    QN_SERIALIZE(BasePrimitiveType)

    BOOST_DESCRIBE_CLASS(BasePrimitiveType, (Expr), (), (), ())
};

} // namespace QN::DOM::FormulaSyntaxTree
