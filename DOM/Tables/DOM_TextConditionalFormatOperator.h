#pragma once

#include <boost/variant/variant.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "DOM/FormulaSyntaxTree/DOM_Expr.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// A condition on the text of a cell. The text to compare with is given as such or by an expression, which may be null;
/// the two are never equal, whatever the expression says. Copying it clones the expression: see
/// `FormulaSyntaxTree::BaseCompoundExpr` for trees that cannot be copied.
class DOM_API TextConditionalFormatOperator {
public:
    using ExprPtr = std::unique_ptr<FormulaSyntaxTree::Expr>;
    using Argument = boost::variant<std::string, ExprPtr>;

    /// Any other number passes through unchanged.
    enum class Type : std::int32_t { ContainsText = 0, NotContainsText = 1, BeginsWith = 2, EndsWith = 3 };

    TextConditionalFormatOperator() = default;
    TextConditionalFormatOperator(Type type, std::string argument)
        : _type(type), _argument(std::move(argument))
    {
    }
    TextConditionalFormatOperator(Type type, ExprPtr argument) : _type(type), _argument(std::move(argument))
    {
    }
    ~TextConditionalFormatOperator() = default;
    QN_DEEP_COPY(TextConditionalFormatOperator)

    Type getType() const { return _type; }
    void setType(Type type) { _type = type; }

    const Argument& getArgument() const { return _argument; }
    void setArgument(std::string argument) { _argument = std::move(argument); }
    void setArgument(ExprPtr argument) { _argument = std::move(argument); }

    QN_VALUE(TextConditionalFormatOperator)

private:
    Type _type{};
    Argument _argument;

    BOOST_DESCRIBE_CLASS(TextConditionalFormatOperator, (), (), (), (_type, _argument))
};

} // namespace QN::DOM
