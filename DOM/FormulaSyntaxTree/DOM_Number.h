#pragma once

#include <memory>
#include <utility>

#include "DOM/FormulaSyntaxTree/DOM_BasePrimitiveType.h"

namespace QN::DOM {
class CellFormat;
}

namespace QN::DOM::FormulaSyntaxTree {

/// A number and how it was written, if that is more than a plain number.
class DOM_API Number final : public Reflectable<BasePrimitiveType> {
public:
    Number() = default;
    explicit Number(double value, std::shared_ptr<const CellFormat> format = nullptr)
        : _value(value), _format(std::move(format))
    {
    }

    double getValue() const { return _value; }
    void setValue(double value) { _value = value; }
    void negate() { _value = -_value; }

    /// May be null. Copies share it.
    const std::shared_ptr<const CellFormat>& getFormat() const { return _format; }

    /// Formats compare by value. A NaN is unequal to every number, itself included.
    QN_VALUE(Number)
    QN_CONCRETE(Expr)

private:
    double _value = 0.0;
    std::shared_ptr<const CellFormat> _format;

    BOOST_DESCRIBE_CLASS(Number, (BasePrimitiveType), (), (), (_value, _format))
};

} // namespace QN::DOM::FormulaSyntaxTree
