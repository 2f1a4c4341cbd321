#pragma once

#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasExpression.h"

/// Functions of other expressions. An operand may be null: such a function is copied, compared and persisted, but the
/// getter of the operand fails the contract "plainPtr".

namespace QN::DOM::DrawingFormulas {

/// Any other number passes through unchanged.
enum class UnaryFunctionType : unsigned char {
    Negate = 0,
    Abs = 1,
    Sqrt = 2,
    Sin = 3,
    Cos = 4,
    Tan = 5,
    Atan = 6
};

/// Any other number passes through unchanged.
enum class BinaryFunctionType : unsigned char {
    Plus = 0,
    Minus = 1,
    Multiply = 2,
    Divide = 3,
    Min = 4,
    Max = 5,
    Atan2 = 6,
};

class DOM_API UnaryFunction final : public Reflectable<Expression> {
public:
    UnaryFunction() = default;
    UnaryFunction(UnaryFunctionType type, std::unique_ptr<Expression> operand)
        : _type(type), _operand(std::move(operand))
    {
    }
    QN_DEEP_COPY(UnaryFunction)
    ~UnaryFunction() override;

    UnaryFunctionType getType() const { return _type; }
    const Expression* getOperand() const { return getRequiredOperand(_operand); }

    QN_CONCRETE(Expression)
    QN_VALUE(UnaryFunction)

private:
    friend struct OperandPlacesOf;

    UnaryFunctionType _type{};
    std::unique_ptr<Expression> _operand;

    BOOST_DESCRIBE_CLASS(UnaryFunction, (Expression), (), (), (_type, _operand))
};

class DOM_API BinaryFunction final : public Reflectable<Expression> {
public:
    BinaryFunction() = default;
    BinaryFunction(BinaryFunctionType type, std::unique_ptr<Expression> operand1,
                   std::unique_ptr<Expression> operand2)
        : _type(type), _operand1(std::move(operand1)), _operand2(std::move(operand2))
    {
    }
    QN_DEEP_COPY(BinaryFunction)
    ~BinaryFunction() override;

    BinaryFunctionType getType() const { return _type; }
    const Expression* getOperand1() const { return getRequiredOperand(_operand1); }
    const Expression* getOperand2() const { return getRequiredOperand(_operand2); }

    QN_CONCRETE(Expression)
    QN_VALUE(BinaryFunction)

private:
    friend struct OperandPlacesOf;

    BinaryFunctionType _type{};
    std::unique_ptr<Expression> _operand1;
    std::unique_ptr<Expression> _operand2;

    BOOST_DESCRIBE_CLASS(BinaryFunction, (Expression), (), (), (_type, _operand1, _operand2))
};

/// A choice between two expressions by a third.
class DOM_API IfFunction final : public Reflectable<Expression> {
public:
    IfFunction() = default;
    IfFunction(std::unique_ptr<Expression> condition, std::unique_ptr<Expression> thenExpression,
               std::unique_ptr<Expression> elseExpression)
        : _condition(std::move(condition)), _thenExpression(std::move(thenExpression)),
          _elseExpression(std::move(elseExpression))
    {
    }
    QN_DEEP_COPY(IfFunction)
    ~IfFunction() override;

    const Expression* getCondition() const { return getRequiredOperand(_condition); }
    const Expression* getThenExpression() const { return getRequiredOperand(_thenExpression); }
    const Expression* getElseExpression() const { return getRequiredOperand(_elseExpression); }

    QN_CONCRETE(Expression)
    QN_VALUE(IfFunction)

private:
    friend struct OperandPlacesOf;

    std::unique_ptr<Expression> _condition;
    std::unique_ptr<Expression> _thenExpression;
    std::unique_ptr<Expression> _elseExpression;

    BOOST_DESCRIBE_CLASS(IfFunction, (Expression), (), (), (_condition, _thenExpression, _elseExpression))
};

} // namespace QN::DOM::DrawingFormulas
