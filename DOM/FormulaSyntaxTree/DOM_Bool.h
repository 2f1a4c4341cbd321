#pragma once

#include "DOM/FormulaSyntaxTree/DOM_BasePrimitiveType.h"

namespace QN::DOM::FormulaSyntaxTree {

class DOM_API Bool final : public Reflectable<BasePrimitiveType> {
public:
    Bool() = default;
    explicit Bool(bool value) : _bool(value) {}

    bool getValue() const { return _bool; }

    QN_VALUE(Bool)
    QN_CONCRETE(Expr)

private:
    bool _bool = false;

    BOOST_DESCRIBE_CLASS(Bool, (BasePrimitiveType), (), (), (_bool))
};

} // namespace QN::DOM::FormulaSyntaxTree
