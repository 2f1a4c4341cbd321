#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "DOM/FormulaSyntaxTree/DOM_Expr.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// A condition on a cell with one argument, which may be null. Copying it clones the argument: see
/// `FormulaSyntaxTree::BaseCompoundExpr` for trees that cannot be copied.
class DOM_API UnaryConditionalFormatOperator {
public:
    using ExprPtr = std::unique_ptr<FormulaSyntaxTree::Expr>;

    /// `Expression` is a formula of its own that decides. Any other number passes through unchanged.
    enum class Type : std::int32_t {
        LessThan = 0,
        LessThanOrEqual = 1,
        Equal = 2,
        NotEqual = 3,
        GreaterThanOrEqual = 4,
        GreaterThan = 5,
        Expression = 6,
    };

    UnaryConditionalFormatOperator() = default;
    UnaryConditionalFormatOperator(Type type, ExprPtr argument) : _type(type), _argument(std::move(argument))
    {
    }
    ~UnaryConditionalFormatOperator() = default;
    QN_DEEP_COPY(UnaryConditionalFormatOperator)

    Type getType() const { return _type; }
    void setType(Type type) { _type = type; }

    const FormulaSyntaxTree::Expr* getArgument() const { return _argument.get(); }
    FormulaSyntaxTree::Expr* getArgument() { return _argument.get(); }
    void setArgument(ExprPtr argument) { _argument = std::move(argument); }

    QN_VALUE(UnaryConditionalFormatOperator)

private:
    Type _type{};
    ExprPtr _argument;

    BOOST_DESCRIBE_CLASS(UnaryConditionalFormatOperator, (), (), (), (_type, _argument))
};

} // namespace QN::DOM
