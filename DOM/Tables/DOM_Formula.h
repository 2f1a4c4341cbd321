#pragma once

#include <boost/optional/optional.hpp>

#include <cstdint>
#include <utility>

#include "DOM/FormulaSyntaxTree/DOM_Expr.h"
#include "DOM/Tables/DOM_RareValue.h"
#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Size2D.h"

namespace QN::DOM {

/// What computes the value of a cell, or of the block of cells that an array formula covers from its root cell on.
class DOM_API Formula {
public:
    Formula() = default;
    Formula(FormulaSyntaxTree::ExprPtr syntaxTree, bool forceFormula)
        : _forceFormula(forceFormula), _formulaSyntaxTree(std::move(syntaxTree))
    {
    }
    /// Copies the tree without recursion: see `FormulaSyntaxTree::BaseCompoundExpr` for trees that cannot be copied.
    QN_DEEP_COPY(Formula)

    /// Set for an array formula: the size of its block. An empty one makes an ordinary formula. Valid until it is
    /// set again.
    const boost::optional<Size2D<std::uint64_t>>& getArrayFormulaSize() const
    {
        return _arrayFormulaSize.get();
    }
    void setArrayFormulaSize(boost::optional<Size2D<std::uint64_t>> size) { _arrayFormulaSize.set(size); }

    /// Whether the cell is a formula even where a plain value would serve.
    bool isForceFormula() const { return _forceFormula; }

    /// Null in a default formula.
    const FormulaSyntaxTree::ExprPtr& getSyntaxTree() const { return _formulaSyntaxTree; }
    FormulaSyntaxTree::ExprPtr& getSyntaxTree() { return _formulaSyntaxTree; }

    QN_VALUE(Formula)

private:
    RareValue<boost::optional<Size2D<std::uint64_t>>> _arrayFormulaSize;
    bool _forceFormula = false;
    FormulaSyntaxTree::ExprPtr _formulaSyntaxTree;

    BOOST_DESCRIBE_CLASS(Formula, (), (), (), (_arrayFormulaSize, _forceFormula, _formulaSyntaxTree))
};

} // namespace QN::DOM
