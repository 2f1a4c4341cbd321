#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasConstant.h"

#include <limits>
#include <numbers>

#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::DrawingFormulas {

QN_DEFINE_VALUE(Constant)
QN_DEFINE_CONCRETE(Constant, Expression)

double Constant::getValue() const
{
    switch (_type) {
    case ConstantType::Pi:
        return std::numbers::pi;
    case ConstantType::FullTurn:
        return 360.0 * 60000.0;
    default:
        return std::numeric_limits<double>::quiet_NaN();
    }
}

} // namespace QN::DOM::DrawingFormulas
