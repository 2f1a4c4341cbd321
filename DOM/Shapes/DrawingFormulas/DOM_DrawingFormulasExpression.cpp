#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasExpression.h"

#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasConstant.h"
#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasFunctions.h"
#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasReference.h"
#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasValue.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::DrawingFormulas {

QN_DEFINE_SERIALIZE(Expression)
QN_DEFINE_DEEP_EQUALITY(Expression)

ExpressionsDynamicInitEnforcer::ExpressionsDynamicInitEnforcer() = default;

QN_REGISTER_TYPE(Value, "QN::DOM::DrawingFormulas::Value")
QN_REGISTER_TYPE(AdjustValueReference, "QN::DOM::DrawingFormulas::AdjustValueReference")
QN_REGISTER_TYPE(FormulaReference, "QN::DOM::DrawingFormulas::FormulaReference")
QN_REGISTER_TYPE(Constant, "QN::DOM::DrawingFormulas::Constant")
QN_REGISTER_TYPE(UnaryFunction, "QN::DOM::DrawingFormulas::UnaryFunction")
QN_REGISTER_TYPE(BinaryFunction, "QN::DOM::DrawingFormulas::BinaryFunction")
QN_REGISTER_TYPE(IfFunction, "QN::DOM::DrawingFormulas::IfFunction")

QN_REGISTER_RELATION(Expression, Value)
QN_REGISTER_RELATION(Expression, AdjustValueReference)
QN_REGISTER_RELATION(Expression, FormulaReference)
QN_REGISTER_RELATION(Expression, Constant)
QN_REGISTER_RELATION(Expression, UnaryFunction)
QN_REGISTER_RELATION(Expression, BinaryFunction)
QN_REGISTER_RELATION(Expression, IfFunction)

} // namespace QN::DOM::DrawingFormulas
