#pragma once

#include <cstdint>

#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/FloatNumber.h"

namespace QN::DOM::CellFormatModel {

/// A comparison with a number, which decides whether a rule is for a value. The number is finite: setting another one
/// fails the contract "isfinite(value)", and a file that holds another one raises `cereal::Exception`.
class DOM_API Condition {
public:
    /// Any other number passes through unchanged.
    enum class Type : std::int32_t {
        Equal = 0,
        NotEqual = 1,
        Less = 2,
        LessOrEqual = 3,
        Greater = 4,
        GreaterOrEqual = 5,
    };

    Condition() = default;
    Condition(Type type, FloatNumber value) : _type(type) { setValue(value); }

    Type getType() const { return _type; }
    void setType(Type type) { _type = type; }

    FloatNumber getValue() const { return _value; }
    void setValue(FloatNumber value);

    QN_ORDERED_VALUE(Condition)

private:
    Type _type{};
    FloatNumber _value;

    BOOST_DESCRIBE_CLASS(Condition, (), (), (), (_type, _value))
};

} // namespace QN::DOM::CellFormatModel
