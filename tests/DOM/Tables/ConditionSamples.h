#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <string>

#include "DOM/FormulaSyntaxTree/DOM_String.h"

/// Arguments of conditions.

namespace QN::Test {

inline std::unique_ptr<DOM::FormulaSyntaxTree::Expr> makeExpr(const std::string& text)
{
    return std::make_unique<DOM::FormulaSyntaxTree::String>(text);
}

/// The text of such an argument, the first one of its file or a later one.
inline std::string makeExprJson(const std::string& text, bool isFirst = true)
{
    const std::string type =
        isFirst ? R"("polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::FormulaSyntaxTree::String")"
                : R"("polymorphic_id":1)";
    return "{" + type + R"(,"ptr_wrapper":{"valid":1,"data":{"value0":{"value0":{}},"_value":")" + text +
           R"("}}})";
}

/// The least and the greatest number that a type of conditions may have, neither of which has a name.
template <class Type>
inline constexpr Type LeastType = static_cast<Type>(std::numeric_limits<std::int32_t>::min());
template <class Type>
inline constexpr Type GreatestType = static_cast<Type>(std::numeric_limits<std::int32_t>::max());

} // namespace QN::Test
