#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasFormulasMap.h"

#include <algorithm>

#include "Utils/Public/Assert.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM::DrawingFormulas {

namespace {

const ExpressionsDynamicInitEnforcer formulasMapInitEnforcer;

} // namespace

QN_DEFINE_VALUE(FormulasMap)
QN_DEFINE_DEEP_COPY(FormulasMap)

unsigned long FormulasMap::add(std::string name, std::unique_ptr<Expression> formula)
{
    QN_CONTRACT(_formulas.size() == _formulaNames.size(),
                "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasFormulasMap", 29,
                "_formulas.size() == _formulaNames.size()");
    _formulas.push_back(std::move(formula));
    try {
        _formulaNames.push_back(std::move(name));
    } catch (...) {
        _formulas.pop_back();
        throw;
    }
    return _formulas.size() - 1;
}

const Expression* FormulasMap::get(unsigned long index) const
{
    return index < _formulas.size() ? _formulas[index].get() : nullptr;
}

const std::string* FormulasMap::getName(unsigned long index) const
{
    return index < _formulaNames.size() ? &_formulaNames[index] : nullptr;
}

const Expression* FormulasMap::find(const std::string& name) const
{
    // When no name matches, the search ends before the first one: position -1, which is out of range.
    const auto found = std::find(_formulaNames.rbegin(), _formulaNames.rend(), name);
    return get(static_cast<unsigned long>(_formulaNames.rend() - found) - 1);
}

} // namespace QN::DOM::DrawingFormulas
