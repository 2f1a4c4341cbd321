#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasFunctions.h"

#include <array>
#include <span>

#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasConstant.h"
#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasReference.h"
#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasValue.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::DrawingFormulas {

QN_DEFINE_VALUE(UnaryFunction)
QN_DEFINE_CONCRETE(UnaryFunction, Expression)
QN_DEFINE_DEEP_COPY_WITH_BASE(UnaryFunction, Reflectable<Expression>)

QN_DEFINE_VALUE(BinaryFunction)
QN_DEFINE_CONCRETE(BinaryFunction, Expression)
QN_DEFINE_DEEP_COPY_WITH_BASE(BinaryFunction, Reflectable<Expression>)

QN_DEFINE_VALUE(IfFunction)
QN_DEFINE_CONCRETE(IfFunction, Expression)
QN_DEFINE_DEEP_COPY_WITH_BASE(IfFunction, Reflectable<Expression>)

/// Where a node keeps its operands; none for a leaf.
struct OperandPlaces {
    std::array<std::unique_ptr<Expression>*, 3> places{};
    std::size_t count = 0;

    bool isLeaf() const { return count == 0; }
    std::unique_ptr<Expression>& last() const { return *places[count - 1]; }
    std::span<std::unique_ptr<Expression>* const> allButLast() const { return {places.data(), count - 1}; }
};

struct OperandPlacesOf {
    OperandPlaces operator()(UnaryFunction& node) const { return {{&node._operand}, 1}; }
    OperandPlaces operator()(BinaryFunction& node) const { return {{&node._operand1, &node._operand2}, 2}; }
    OperandPlaces operator()(IfFunction& node) const
    {
        return {{&node._condition, &node._thenExpression, &node._elseExpression}, 3};
    }
    template <class Leaf>
    OperandPlaces operator()(Leaf& /*leaf*/) const
    {
        return {};
    }
};

namespace {

const ExpressionsDynamicInitEnforcer functionsInitEnforcer;

OperandPlaces placesOf(Expression& node)
{
    return visit<OperandPlaces>(node, OperandPlacesOf{});
}

/// Turns the tree so that a function among the first operands of the root becomes the root, and the old root its last
/// operand.
/// @return false when there is no such function.
bool rotate(std::unique_ptr<Expression>& root, const OperandPlaces& places)
{
    for (auto* const place : places.allButLast()) {
        if (!*place) {
            continue;
        }
        const OperandPlaces childPlaces = placesOf(**place);
        if (!childPlaces.isLeaf()) {
            auto child = std::move(*place);
            *place = std::move(childPlaces.last());
            childPlaces.last() = std::move(root);
            root = std::move(child);
            return true;
        }
    }
    return false;
}

/// Destroys a tree of any depth in linear time, on a constant piece of the stack and without allocating: each rotation
/// moves one more node onto the chain of last operands, and that chain is taken off from its head.
void destroyTree(std::unique_ptr<Expression>& root)
{
    while (root) {
        const OperandPlaces places = placesOf(*root);
        if (places.isLeaf()) {
            root.reset();
        } else if (!rotate(root, places)) {
            auto rest = std::move(places.last());
            root = std::move(rest);
        }
    }
}

} // namespace

UnaryFunction::~UnaryFunction()
{
    destroyTree(_operand);
}

BinaryFunction::~BinaryFunction()
{
    destroyTree(_operand1);
    destroyTree(_operand2);
}

IfFunction::~IfFunction()
{
    destroyTree(_condition);
    destroyTree(_thenExpression);
    destroyTree(_elseExpression);
}

} // namespace QN::DOM::DrawingFormulas
