#pragma once

#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasExpression.h"

namespace QN::DOM::DrawingFormulas {

/// Names an adjust value or a formula of the same geometry by its position there. The position is not checked.
template <ReferenceType type>
class Reference final : public Reflectable<Expression> {
public:
    Reference() = default;
    explicit Reference(unsigned long index) : _index(index) {}

    unsigned long getIndex() const { return _index; }

    QN_CONCRETE(Expression)
    QN_VALUE(Reference)

private:
    unsigned long _index = 0;

    BOOST_DESCRIBE_CLASS(Reference, (Expression), (), (), (_index))
};

extern template class DOM_API Reference<ReferenceType::AdjustValue>;
extern template class DOM_API Reference<ReferenceType::Formula>;

} // namespace QN::DOM::DrawingFormulas
