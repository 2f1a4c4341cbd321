#pragma once

#include <memory>
#include <string>
#include <vector>

#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasExpression.h"

namespace QN::DOM::DrawingFormulas {

/// The named formulas of a custom geometry. Other formulas reach them by position. There are as many names as formulas;
/// a name need not be unique. A load takes both lists as they stand, and `add` is what checks them.
class DOM_API FormulasMap {
public:
    FormulasMap() = default;
    QN_DEEP_COPY(FormulasMap)

    /// Appends.
    /// @return the position of the new formula.
    unsigned long add(std::string name, std::unique_ptr<Expression> formula);

    /// Null when out of range, and where the formula itself is null.
    const Expression* get(unsigned long index) const;
    /// Null when out of range. Invalidated by `add`.
    const std::string* getName(unsigned long index) const;
    /// The formula of the last entry of the name; null when there is none, when that formula is null, or when that entry
    /// has no formula, as a file can have it: no earlier one is tried. Linear.
    const Expression* find(const std::string& name) const;
    unsigned long size() const { return _formulas.size(); }

    QN_VALUE(FormulasMap)

private:
    std::vector<std::unique_ptr<Expression>> _formulas;
    std::vector<std::string> _formulaNames;

    BOOST_DESCRIBE_CLASS(FormulasMap, (), (), (), (_formulas, _formulaNames))
};

} // namespace QN::DOM::DrawingFormulas
