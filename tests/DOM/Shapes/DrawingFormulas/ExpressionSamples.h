#pragma once

#include <memory>
#include <string>

#include "DOM/FamilyChecks.h"
#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasConstant.h"
#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasFunctions.h"
#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasReference.h"
#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasValue.h"

/// Small drawing formulas for the tests of what holds them.

namespace QN::DOM::DrawingFormulas {

using namespace Test;

inline std::unique_ptr<Expression> value(double number)
{
    return std::make_unique<Value>(number);
}

/// The text of a `Value`, the first or a later one of its text; the number as it is written.
inline std::string firstValueJson(const std::string& number)
{
    return makePolymorphicJson("QN::DOM::DrawingFormulas::Value", R"({"value0":{},"_value":)" + number + "}");
}

inline std::string laterValueJson(const std::string& number, unsigned id = 1)
{
    return makeLaterPolymorphicJson(R"({"value0":{},"_value":)" + number + "}", id);
}

inline double numberOf(const Expression* expression)
{
    return dynamic_cast<const Value&>(*expression).getValue();
}

} // namespace QN::DOM::DrawingFormulas
