#pragma once

#include "DOM/FormulaSyntaxTree/DOM_FormulaErrorType.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/FloatNumber.h"

namespace QN::DOM {

/// A plain value as the content of a block: a number, an error or a boolean. A number is finite: setting another one
/// fails the contract "isfinite(value)", and a file that holds another one raises `cereal::Exception`.
template <class T>
class BlockValue {
public:
    BlockValue() = default;
    explicit BlockValue(T value) : _value(value) { check(value); }

    const T& get() const { return _value; }
    void set(T value)
    {
        check(value);
        _value = value;
    }

    /// Numbers are equal when neither is greater.
    QN_VALUE(BlockValue)

private:
    static void check(const T& value);

    T _value{};

    BOOST_DESCRIBE_CLASS(BlockValue, (), (), (), (_value))
};

extern template class DOM_API BlockValue<FloatNumber>;
extern template class DOM_API BlockValue<FormulaErrorType>;
extern template class DOM_API BlockValue<bool>;

} // namespace QN::DOM
