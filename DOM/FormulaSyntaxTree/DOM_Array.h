#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "DOM/FormulaSyntaxTree/DOM_BasePrimitiveType.h"

namespace QN::DOM::FormulaSyntaxTree {

/// Rows of expressions that stand in a formula as one value. The transformations of trees take it for a leaf. Copying,
/// comparing and destroying arrays inside arrays does not recurse either.
class DOM_API Array final : public Reflectable<BasePrimitiveType> {
public:
    using Items = std::vector<std::vector<ExprPtr>>;

    Array() = default;
    explicit Array(Items items) : _items(std::move(items)) {}
    /// Null items stay null. An item that cannot be cloned stops the process.
    Array(const Array& other);
    Array& operator=(const Array& other);
    Array(Array&&) noexcept = default;
    Array& operator=(Array&&) noexcept = default;
    ~Array() override;

    const Items& getItems() const { return _items; }
    Items& getItems() { return _items; }

    QN_VALUE(Array)
    QN_CONCRETE(Expr)

private:
    Items _items;

    BOOST_DESCRIBE_CLASS(Array, (BasePrimitiveType), (), (), (_items))
};

} // namespace QN::DOM::FormulaSyntaxTree
