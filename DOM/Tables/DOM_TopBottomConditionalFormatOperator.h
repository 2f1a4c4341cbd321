#pragma once

#include <cstdint>
#include <utility>

#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM {

/// Whether a value is among the greatest or the least of the range, so many of them or so many per cent.
class DOM_API TopBottomConditionalFormatOperator {
public:
    /// Other numbers pass through uninterpreted.
    enum class Type : std::uint8_t { Bottom = 0, Top = 1 };

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
