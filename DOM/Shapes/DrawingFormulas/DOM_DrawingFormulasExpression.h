#pragma once

#include <memory>

#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Clonable.h"
#include "Utils/Public/Ptr/PtrUtils.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/TypeList.h"
#include "Utils/Public/Visitor.h"

/// The formula language of shape geometry, as data: what a number of an outline depends on. Nothing here evaluates.

namespace QN::DOM::DrawingFormulas {

/// What the index of a reference counts.
enum class ReferenceType : unsigned char { AdjustValue = 0, Formula = 1 };

class Value;
template <ReferenceType type>
class Reference;
using AdjustValueReference = Reference<ReferenceType::AdjustValue>;
using FormulaReference = Reference<ReferenceType::Formula>;
class Constant;
class UnaryFunction;
class BinaryFunction;
class IfFunction;

/// The root of the family: a node of a formula's tree. A node owns its operands, so that no node stands in two trees;
/// another formula is reached by its index only. Destroying a tree takes neither stack nor memory, however deep it is;
/// copying, comparing and persisting one recurse over its depth.
class DOM_API Expression : public Clonable<Expression>, public Reflectable<> {
public:
    using Types = TypeList<Value, AdjustValueReference, FormulaReference, Constant, UnaryFunction,
                           BinaryFunction, IfFunction>;
    QN_FAMILY_ROOT(Expression)
    QN_SERIALIZE(Expression)

    BOOST_DESCRIBE_CLASS(Expression, (), (), (), ())
};

/// Of one dynamic class and equal by its `==`. A NaN value is unequal to itself.
DOM_API bool areDeeplyEqual(const Expression& left, const Expression& right);

/// The operand behind a pointer that must be set: null fails the contract "plainPtr".
inline const Expression* getRequiredOperand(const std::unique_ptr<Expression>& operand)
{
    return checkedDeref(static_cast<const Expression*>(operand.get()));
}

/// Keeps the unit that registers the family linked in: made wherever expressions are persisted.
class DOM_API ExpressionsDynamicInitEnforcer {
public:
    ExpressionsDynamicInitEnforcer();
};

} // namespace QN::DOM::DrawingFormulas
