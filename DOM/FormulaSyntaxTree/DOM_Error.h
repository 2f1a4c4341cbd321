#pragma once

#include "DOM/FormulaSyntaxTree/DOM_BasePrimitiveType.h"
#include "DOM/FormulaSyntaxTree/DOM_FormulaErrorType.h"

namespace QN::DOM::FormulaSyntaxTree {

class DOM_API Error final : public Reflectable<BasePrimitiveType> {
public:
    Error() = default;
    explicit Error(FormulaErrorType error) : _error(error) {}

    FormulaErrorType getValue() const { return _error; }

    QN_VALUE(Error)
    QN_CONCRETE(Expr)

private:
    FormulaErrorType _error{};

    BOOST_DESCRIBE_CLASS(Error, (BasePrimitiveType), (), (), (_error))
};

} // namespace QN::DOM::FormulaSyntaxTree
