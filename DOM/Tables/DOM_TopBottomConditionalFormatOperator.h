#pragma once

#include <cstdint>
#include <utility>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// Whether a value is among the greatest or the least of the range, so many of them or so many per cent. A file has the
/// value before the flag.
class DOM_API TopBottomConditionalFormatOperator {
public:
    /// Any other number passes through unchanged.
    enum class Type : std::int32_t { Bottom = 0, Top = 1 };

    /// Of type 1, unlike the other conditions, whose first type is 0.
    TopBottomConditionalFormatOperator() = default;
    TopBottomConditionalFormatOperator(Type type, bool usePercent, std::uint32_t value)
        : _type(type), _usePercent(usePercent), _value(value)
    {
    }

    Type getType() const { return _type; }
    void setType(Type type) { _type = type; }

    bool getUsePercent() const { return _usePercent; }
    void setUsePercent(bool usePercent) { _usePercent = usePercent; }

    std::uint32_t getValue() const { return _value; }
    void setValue(std::uint32_t value) { _value = value; }

    QN_VALUE(TopBottomConditionalFormatOperator)
    QN_JSON_ORDER(TopBottomConditionalFormatOperator, 0, 2, 1)

private:
    Type _type = Type::Top;
    bool _usePercent = false;
    std::uint32_t _value = 0;

    BOOST_DESCRIBE_CLASS(TopBottomConditionalFormatOperator, (), (), (), (_type, _usePercent, _value))
};

} // namespace QN::DOM
