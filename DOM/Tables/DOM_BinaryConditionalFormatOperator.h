#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "DOM/FormulaSyntaxTree/DOM_Expr.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// A condition on a cell with two arguments, each of which may be null. Copying it clones the arguments: see
/// `FormulaSyntaxTree::BaseCompoundExpr` for trees that cannot be copied.
class DOM_API BinaryConditionalFormatOperator {
public:
    using ExprPtr = std::unique_ptr<FormulaSyntaxTree::Expr>;

    /// Any other number passes through unchanged.
    enum class Type : std::int32_t { Between = 0, NotBetween = 1 };

    BinaryConditionalFormatOperator() = default;
    BinaryConditionalFormatOperator(Type type, ExprPtr firstArgument, ExprPtr secondArgument)
        : _type(type), _firstArgument(std::move(firstArgument)), _secondArgument(std::move(secondArgument))
    {
    }
    ~BinaryConditionalFormatOperator() = default;
    QN_DEEP_COPY(BinaryConditionalFormatOperator)

    Type getType() const { return _type; }
    void setType(Type type) { _type = type; }

    const FormulaSyntaxTree::Expr* getFirstArgument() const { return _firstArgument.get(); }
    FormulaSyntaxTree::Expr* getFirstArgument() { return _firstArgument.get(); }
    void setFirstArgument(ExprPtr argument) { _firstArgument = std::move(argument); }

    const FormulaSyntaxTree::Expr* getSecondArgument() const { return _secondArgument.get(); }
    FormulaSyntaxTree::Expr* getSecondArgument() { return _secondArgument.get(); }
    void setSecondArgument(ExprPtr argument) { _secondArgument = std::move(argument); }

    QN_VALUE(BinaryConditionalFormatOperator)

private:
    Type _type{};
    ExprPtr _firstArgument;
    ExprPtr _secondArgument;

    BOOST_DESCRIBE_CLASS(BinaryConditionalFormatOperator, (), (), (),
                         (_type, _firstArgument, _secondArgument))
};

} // namespace QN::DOM
