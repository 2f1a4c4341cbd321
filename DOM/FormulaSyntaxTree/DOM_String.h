#pragma once

#include <string>
#include <utility>

#include "DOM/FormulaSyntaxTree/DOM_BasePrimitiveType.h"

namespace QN::DOM::FormulaSyntaxTree {

class DOM_API String final : public Reflectable<BasePrimitiveType> {
public:
    String() = default;
    explicit String(std::string value) : _value(std::move(value)) {}

    const std::string& getValue() const { return _value; }

    QN_VALUE(String)
    QN_CONCRETE(Expr)

private:
    std::string _value;

    BOOST_DESCRIBE_CLASS(String, (BasePrimitiveType), (), (), (_value))
};

} // namespace QN::DOM::FormulaSyntaxTree
